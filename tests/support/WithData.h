// The ground of all tests of stores: a fresh desktop of data and a fresh program on it.
#pragma once

#include <gtest/gtest.h>

#include "core/ProgramState.h"
#include "tests/support/DataDesktop.h"

namespace dorvalin {

inline constexpr char16_t kTestAppPath[] = u"C:\\Programme\\Dorvalin\\";
inline constexpr char16_t kTestAppData[] = u"C:\\Benutzer\\Anna\\Anwendungsdaten";

class WithData : public testing::Test {
 protected:
  WithData() {
    desktop.files().PutFolder(kTestAppPath);
    state.AppPath = kTestAppPath;
  }

  std::vector<std::u16string> Messages() { return desktop.dialogs().Texts(); }

  platform::DataDesktop desktop;
  ProgramState state;
  platform::MemoryFiles& files = desktop.files();
  platform::Faults& faults = desktop.faults();

 private:
  platform::DesktopScope desktopScope_{desktop};
  ProgramStateScope stateScope_{state};
};

}  // namespace dorvalin
