// The system's own dialogs. They run a nested message loop, in which timers tick and other windows
// of the program get their events, until the user has answered; their owner is disabled meanwhile.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/font.h"

namespace platform {

class TopWindow;

enum class MessageButtons { Ok = 0, OkCancel = 1, YesNoCancel = 3, YesNo = 4 };
enum class MessageIcon { None = 0, Stop = 16, Question = 32, Exclamation = 48, Information = 64 };
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// What a box answers that nobody could answer.
constexpr Answer Unanswered(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::Ok:
      return Answer::Ok;
    case MessageButtons::YesNo:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

struct Message {
  std::u16string text;
  std::u16string title;
  MessageButtons buttons = MessageButtons::Ok;
  MessageIcon icon = MessageIcon::None;
  TopWindow* owner = nullptr;  ///< may be none
};

struct FontChoice {
  Font font;
  std::uint32_t colour = 0;  ///< 0x00BBGGRR
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  /// A box that cannot be shown stays Unanswered.
  virtual Answer ShowMessage(const Message& message) = 0;
  /// None when the user cancelled.
  [[nodiscard]] virtual std::optional<FontChoice> ChooseFont(const FontChoice& start,
                                                             TopWindow* owner) = 0;
};

}  // namespace platform
