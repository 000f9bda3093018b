#include "platform/memory/MemoryDialogs.h"

#include <utility>

namespace platform {
namespace {

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

Answer MemoryDialogs::ShowMessage(const Message& message) {
  if (faults_.Fails("Dialogs.ShowMessage")) return Unanswered(message.buttons);
  shown.push_back(message);
  if (whileShown) whileShown(message);
  return TakeFirst(answers, Unanswered(message.buttons));
}

std::optional<FontChoice> MemoryDialogs::ChooseFont(const FontChoice& start, TopWindow*) {
  if (faults_.Fails("Dialogs.ChooseFont")) return std::nullopt;
  fontsOffered.push_back(start);
  return TakeFirst<std::optional<FontChoice>>(fontChoices, std::nullopt);
}

}  // namespace platform
