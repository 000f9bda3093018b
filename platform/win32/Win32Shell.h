#pragma once

#include "platform/shell.h"
#include "platform/win32/handles.h"

namespace platform {

class Win32Shell final : public Shell {
 public:
  bool Open(std::u16string_view verb, std::u16string_view target,
            std::u16string_view arguments) override;
  bool Run(std::u16string_view commandLine) override;
  bool CopyFiles(std::u16string_view source, std::u16string_view target,
                 const CopyOptions& options) override;
  std::optional<std::u16string> SpecialFolder(int number) override;
  Icon FileIcon(std::u16string_view path, IconSize size, bool byAttributes) override;
  Icon IconOf(std::u16string_view path, int index, IconSize size) override;
  std::u16string TypeName(std::u16string_view path) override;
  std::optional<VersionInformation> Version(std::u16string_view path) override;
  std::u16string ExpandEnvironment(std::u16string_view text) override;
  std::u16string LogonName() override;
  std::u16string ProgramFolder() override;
  bool PreviousInstance() override;

 private:
  /// Held to the end of the process, so that a second one finds it.
  OwnedKernel mark_;
  bool previous_ = false;
};

}  // namespace platform
