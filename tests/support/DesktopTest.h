// A fresh in-process desktop for each test, with a user in front of it.
#pragma once

#include <gtest/gtest.h>

#include "platform/Form.h"
#include "platform/memory/ForeignWindow.h"
#include "platform/memory/MemoryDesktop.h"
#include "tests/support/User.h"

namespace dorvalin {

using namespace std::chrono_literals;

class DesktopTest : public testing::Test {
 protected:
  platform::MemoryDesktop desktop;
  platform::DesktopScope scope{desktop};
  User user{desktop};
};

}  // namespace dorvalin
