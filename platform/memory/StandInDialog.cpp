#include "platform/memory/StandInDialog.h"

#include <algorithm>

#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/WindowFrame.h"

namespace platform {
namespace {

constexpr Size kSize{320, 120};
constexpr auto kStep = std::chrono::milliseconds(10);

std::vector<Answer> ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::Ok:
      return {Answer::Ok};
    case MessageButtons::OkCancel:
      return {Answer::Ok, Answer::Cancel};
    case MessageButtons::YesNoCancel:
      return {Answer::Yes, Answer::No, Answer::Cancel};
    case MessageButtons::YesNo:
      return {Answer::Yes, Answer::No};
  }
  return {};
}

MemoryTopWindow* LivingWindow(TopWindow* window) {
  auto* living = static_cast<MemoryTopWindow*>(window);
  return living != nullptr && living->Alive() ? living : nullptr;
}

}  // namespace

StandInDialog::StandInDialog(MemoryDesktop& desktop, const Message& message)
    : desktop_(desktop),
      message_(message),
      buttons_(ButtonsOf(message.buttons)),
      owner_(LivingWindow(message.owner)) {
  desktop_.stack().Add(*this);
  // An owner that was disabled before stays so.
  if (owner_ != nullptr && owner_->OwnEnabled()) {
    disabled_ = owner_;
    disabled_->Enable(false);
  }
  desktop_.stack().Activate(this);
}

StandInDialog::~StandInDialog() {
  // First, or the activation would leave the program.
  if (disabled_ != nullptr) disabled_->Enable(true);
  desktop_.stack().Remove(*this);
}

std::optional<Answer> StandInDialog::Run(std::chrono::milliseconds longest) {
  for (auto stood = kStep; !answer_ && stood <= longest; stood += kStep) {
    desktop_.pump().RunFor(kStep, [] {});
  }
  return answer_;
}

Rect StandInDialog::Area() const {
  const Size screen = desktop_.screen().SizeNow();
  return Rect::At({(screen.width - kSize.width) / 2, (screen.height - kSize.height) / 2}, kSize);
}

DesktopWindow* StandInDialog::Owner() const { return owner_; }

void StandInDialog::OnOwnerClosed() {
  owner_ = disabled_ = nullptr;
  answer_ = Unanswered(message_.buttons);
}

void StandInDialog::Paint(Surface& screen) {
  const WindowFrame frame(Area());
  frame.Paint(screen, message_.title, desktop_.stack().Active() == this);
  MemoryTextDrawing::Paint(screen, frame.Inside().Grown(-8), message_.text, {}, 0,
                           {.wordBreak = true});
}

void StandInDialog::OnKey(const KeyInput& input) {
  if (!input.down) return;
  const int count = static_cast<int>(buttons_.size());
  const auto escape = std::ranges::find(buttons_, Answer::Cancel);
  switch (input.virtualKey) {
    case key::kTab:
      return GoOn(input.modifiers.shift ? count - 1 : 1);
    case key::kRight:
    case key::kDown:
      return GoOn(1);
    case key::kLeft:
    case key::kUp:
      return GoOn(count - 1);
    case key::kEnter:
    case key::kSpace:
      answer_ = buttons_[focused_];
      return;
    case key::kEscape:
      if (escape != buttons_.end() || count == 1) answer_ = Unanswered(message_.buttons);
      return;
    default:
      return;
  }
}

void StandInDialog::GoOn(int buttons) {
  focused_ = (focused_ + static_cast<std::size_t>(buttons)) % buttons_.size();
}

}  // namespace platform
