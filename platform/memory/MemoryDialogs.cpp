#include "platform/memory/MemoryDialogs.h"

#include <utility>

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/StandInDialog.h"

namespace platform {
namespace {

// How long a user looks before the answer, and before a dialog without one is given up.
constexpr auto kReading = std::chrono::milliseconds(50);
constexpr auto kWaiting = std::chrono::milliseconds(1000);

template <class T>
T TakeFirst(std::deque<T>& queue, T otherwise) {
  if (queue.empty()) return otherwise;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

}  // namespace

std::vector<std::u16string> MemoryDialogs::Texts() const {
  std::vector<std::u16string> texts;
  for (const Message& message : shown) texts.push_back(message.text);
  return texts;
}

std::optional<Answer> MemoryDialogs::Stand(const Message& message, bool scripted) const {
  if (desktop_ == nullptr) {
    if (whileShown) whileShown(message);
    return std::nullopt;
  }
  StandInDialog dialog(*desktop_, message);
  if (whileShown) whileShown(message);
  return dialog.Run(scripted ? kReading : kWaiting);
}

Answer MemoryDialogs::ShowMessage(const Message& message) {
  const Answer unanswered = Unanswered(message.buttons);
  if (faults_.Fails("Dialogs.ShowMessage")) return unanswered;
  shown.push_back(message);
  const auto pressed = Stand(message, !answers.empty());
  return pressed ? *pressed : TakeFirst(answers, unanswered);
}

std::optional<FontChoice> MemoryDialogs::ChooseFont(const FontChoice& start, TopWindow* owner) {
  if (faults_.Fails("Dialogs.ChooseFont")) return std::nullopt;
  Message standing{start.font.face, u"Schriftart", MessageButtons::OkCancel};
  standing.owner = owner;
  const auto pressed = Stand(standing, !fontChoices.empty());
  if (pressed) return *pressed == Answer::Ok ? std::optional(start) : std::nullopt;
  return TakeFirst<std::optional<FontChoice>>(fontChoices, std::nullopt);
}

}  // namespace platform
