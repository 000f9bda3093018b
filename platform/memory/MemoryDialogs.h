// Dialogs whose user is the test: it lays its answers down beforehand and reads afterwards what was
// shown.
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include "platform/dialogs.h"
#include "platform/memory/Faults.h"

namespace platform {

class MemoryDialogs : public Dialogs {
 public:
  explicit MemoryDialogs(Faults& faults) : faults_(faults) {}

  /// Answers to the coming messages, in order. Without one a message is answered as by the Escape
  /// key or, where that does nothing, by "Nein".
  std::deque<Answer> answers;
  std::deque<std::optional<FontChoice>> fontChoices;
  /// Called while a message stands, as its nested loop would let other things happen.
  std::function<void(const Message&)> whileShown;

  std::vector<Message> shown;
  std::vector<FontChoice> fontsOffered;

  /// Texts of all messages shown so far.
  [[nodiscard]] std::vector<std::u16string> Texts() const;

  Answer ShowMessage(const Message& message) override;
  std::optional<FontChoice> ChooseFont(const FontChoice& start, TopWindow* owner) override;

 private:
  Faults& faults_;
};

}  // namespace platform
