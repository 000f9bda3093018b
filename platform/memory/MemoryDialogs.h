// Dialogs whose user is the test: it presses their keys or lays its answers down beforehand, and
// reads afterwards what was shown.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/dialogs.h"
#include "platform/memory/Faults.h"

namespace platform {

class MemoryDesktop;

class MemoryDialogs : public Dialogs {
 public:
  /// On a desktop of data alone (none) a dialog is answered at once.
  explicit MemoryDialogs(Faults& faults, MemoryDesktop* desktop = nullptr)
      : faults_(faults), desktop_(desktop) {}

  /// Answers to the coming messages, in order, after the time that a user takes. Without one, and
  /// without a key, a message is given up as Unanswered.
  std::deque<Answer> answers;
  std::deque<std::optional<FontChoice>> fontChoices;
  /// Called while a message stands, as its nested loop would let other things happen.
  std::function<void(const Message&)> whileShown;

  std::vector<Message> shown;

  /// Texts of all messages shown so far.
  [[nodiscard]] std::vector<std::u16string> Texts() const;

  Answer ShowMessage(const Message& message) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& start, TopWindow* owner) override;

 private:
  /// The key's answer; none when the user's time was over before.
  std::optional<Answer> Stand(const Message& message, bool scripted) const;

  Faults& faults_;
  MemoryDesktop* desktop_;
};

}  // namespace platform
