#pragma once

#include "platform/dialogs.h"

namespace platform {

class Win32Dialogs final : public Dialogs {
 public:
  Answer ShowMessage(const Message& message) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& start, TopWindow* owner) override;
};

}  // namespace platform
