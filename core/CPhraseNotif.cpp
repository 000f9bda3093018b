#include "core/CPhraseNotif.h"

#include <utility>

namespace dorvalin {

std::shared_ptr<void> CPhraseNotif::Listen(Listener listener) {
  listeners_.remove_if([](const std::weak_ptr<Listener>& l) { return l.expired(); });
  auto kept = std::make_shared<Listener>(std::move(listener));
  listeners_.push_back(kept);
  return kept;
}

void CPhraseNotif::Raise(std::function<void()> Listener::*event) const {
  // A copy: a handler may open or close views, which changes the list.
  const auto listeners = listeners_;
  for (const auto& entry : listeners) {
    const auto listener = entry.lock();
    if (listener && ((*listener).*event)) ((*listener).*event)();
  }
}

}  // namespace dorvalin
