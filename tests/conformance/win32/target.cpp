// The other program of the conformance suite: a window with one rich text box, which also takes
// text that is dropped on it. Arguments: left, top, right, bottom, file for its state.
#include <cstdlib>

#include "platform/controls.h"
#include "platform/memory/Rtf.h"
#include "platform/pump.h"
#include "platform/win32/WindowsDesktop.h"
#include "platform/win32/wide.h"
#include "platform/window.h"
#include "tests/conformance/win32/TargetState.h"

namespace conformance {
namespace {

using namespace platform;

class Target : public TopWindowEvents {
 public:
  Target(Desktop& desktop, const Rect& place) {
    window_ = desktop.windows().NewTopWindow({.caption = u"Other program"}, *this);
    window_->SetBounds(place);
    window_->SetAcceptsDrops(true);
    FillRect(window_->Canvas(), window_->Canvas().Area(), 0xFFFFFF);
    box_ = desktop.controls().NewRichTextBox(*window_, Rect::At({0, 0}, place.Size()),
                                             {.multiLine = true, .border = false});
    window_->Show(ShowMode::Activate);
    box_->Focus();
  }

  TargetState State() const {
    TargetState state{box_->Text(), {}};
    const auto rich = ReadRtf(box_->RichText(), {});
    if (!rich) return state;
    for (int n = 0; n < static_cast<int>(rich->formats.size()); ++n) {
      if (!rich->formats[n].font.bold) continue;
      if (state.boldRanges.empty() || state.boldRanges.back().second != n) {
        state.boldRanges.emplace_back(n, n);
      }
      ++state.boldRanges.back().second;
    }
    return state;
  }

  DropEffect OnDrag(const DragEvent& event) override {
    return event.data != nullptr && event.data->OffersText() ? DropEffect::Copy : DropEffect::None;
  }
  DropEffect OnDrop(const DragEvent& event) override {
    const auto text = event.data->Text();
    if (!text) return DropEffect::None;
    box_->ReplaceSelection(*text);
    return DropEffect::Copy;
  }

 private:
  std::unique_ptr<TopWindow> window_;
  std::unique_ptr<RichTextBox> box_;
};

int Run(int count, wchar_t** arguments) {
  if (count != 6) return 2;
  WindowsDesktop desktop;
  const DesktopScope scope(desktop);
  const auto number = [&](int n) {
    return static_cast<int>(std::wcstol(arguments[n], nullptr, 10));
  };
  Target target(desktop, {number(1), number(2), number(3), number(4)});
  std::optional<TargetState> told;
  const auto timer = desktop.pump().NewTimer(50, [&] {
    TargetState now = target.State();
    if (told != now && WriteState(desktop.files(), Text(arguments[5]), now)) told = std::move(now);
  });
  timer->SetEnabled(true);
  while (desktop.pump().WaitAndDispatch()) {
  }
  return 0;
}

}  // namespace
}  // namespace conformance

int main() {
  int count = 0;
  wchar_t** arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  return conformance::Run(count, arguments);
}
