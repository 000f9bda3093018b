#include "platform/memory/WindowStack.h"

#include <algorithm>

namespace platform {
namespace {

bool OwnedBy(const DesktopWindow* window, const DesktopWindow& owner) {
  for (; window != nullptr; window = window->Owner()) {
    if (window == &owner) return true;
  }
  return false;
}

bool InTopMostBand(const DesktopWindow* window) {
  for (; window != nullptr; window = window->Owner()) {
    if (window->TopMost()) return true;
  }
  return false;
}

bool CanBeActive(const DesktopWindow* window) {
  return window != nullptr && window->Shown() && window->TakesInput() && window->Activatable();
}

}  // namespace

void WindowStack::Add(DesktopWindow& window) {
  order_.push_back(&window);
  Sort();
}

void WindowStack::Remove(DesktopWindow& window) {
  HandOn(window);
  std::erase(order_, &window);
  std::erase(formerlyActive_, &window);
}

void WindowStack::Raise(DesktopWindow& window) {
  std::stable_partition(order_.begin(), order_.end(),
                        [&](const DesktopWindow* other) { return !OwnedBy(other, window); });
  Sort();
}

void WindowStack::Sort() {
  std::stable_partition(order_.begin(), order_.end(),
                        [](const DesktopWindow* window) { return !InTopMostBand(window); });
}

void WindowStack::Activate(DesktopWindow* window) {
  if (window == active_) return;
  DesktopWindow* former = active_;
  active_ = window;
  if (window != nullptr) {
    std::erase(formerlyActive_, window);
    formerlyActive_.push_back(window);
  }
  if (former != nullptr) former->OnActivation(Activation::Lost);
  // The one that lost it may have given it to a third.
  if (window != nullptr && active_ == window) window->OnActivation(Activation::Gained);
}

void WindowStack::HandOn(DesktopWindow& gone) {
  if (active_ != &gone) return;
  DesktopWindow* next = Successor(gone);
  if (next != nullptr) Raise(*next);
  Activate(next);
}

DesktopWindow* WindowStack::Successor(const DesktopWindow& gone) const {
  if (CanBeActive(gone.Owner())) return gone.Owner();
  const auto usable = [&](const DesktopWindow* other) {
    return other != &gone && CanBeActive(other);
  };
  const auto former = std::find_if(formerlyActive_.rbegin(), formerlyActive_.rend(), usable);
  if (former != formerlyActive_.rend()) return *former;
  const auto front = std::find_if(order_.rbegin(), order_.rend(), usable);
  return front != order_.rend() ? *front : nullptr;
}

DesktopWindow* WindowStack::At(Point screen) const {
  const auto hit = std::find_if(order_.rbegin(), order_.rend(), [&](const DesktopWindow* window) {
    return window->Shown() && window->Covers(screen);
  });
  return hit != order_.rend() ? *hit : nullptr;
}

}  // namespace platform
