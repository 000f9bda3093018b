// A window on the desktop.
#pragma once

#include "platform/win32/DropTarget.h"
#include "platform/win32/PaneWindow.h"
#include "platform/win32/ToolTips.h"

namespace platform {

class Win32TopWindow final : public PaneOf<TopWindow> {
 public:
  explicit Win32TopWindow(TopWindowEvents& events);
  bool Make(const TopWindowOptions& options);

  void SetVisible(bool visible) override;
  void Show(ShowMode mode) override;
  void Hide() override;
  void SetTopMost(bool topMost) override;
  bool SetEllipseRegion(const std::optional<Rect>& box) override;
  void SetCaption(std::u16string_view caption) override;
  void SetIcon(const Icon& icon) override;
  [[nodiscard]] Size ClientSize() const override;
  void SetClientSize(Size size) override;
  void StartMove() override;
  void Close() override { Destroy(); }

  std::optional<LRESULT> Receive(const WindowMessage& message) override;
  ToolTips* Tips() override { return tips_ ? &*tips_ : nullptr; }
  DropRegistration* Drops() override { return &drops_; }
  /// A key for this window or a child, before anyone else. True: it goes no further.
  bool PreviewKey(const MSG& message);

 private:
  [[nodiscard]] bool Activatable() const;
  void PassActivationOn();
  std::optional<LRESULT> AnswerClick() const;
  LRESULT Activated(const WindowMessage& message);
  void KeepFocus();
  void RestoreFocus();

  TopWindowEvents& topEvents_;
  std::optional<ToolTips> tips_;
  DropRegistration drops_;
  OwnedIcon icon_;
  HWND lastFocus_ = nullptr;  // the child that had the keyboard when the activation went
};

}  // namespace platform
