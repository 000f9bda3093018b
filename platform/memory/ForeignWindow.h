// Windows of other programs, of which the program under test knows nothing.
#pragma once

#include <string>

#include "platform/memory/DesktopWindow.h"
#include "platform/memory/RichEdit.h"

namespace platform {

class MemoryDesktop;

class ForeignWindow : public DesktopWindow {
 public:
  /// Shown and active at once, as a program that was just started.
  ForeignWindow(MemoryDesktop& desktop, std::u16string_view title, const Rect& bounds);
  ~ForeignWindow() override;
  ForeignWindow(const ForeignWindow&) = delete;
  ForeignWindow& operator=(const ForeignWindow&) = delete;

  void Show(ShowMode mode);
  void Hide();
  void SetTopMost(bool topMost);
  /// A program that hangs: keys, clicks and drops are lost on it.
  void SetBusy(bool busy) { busy_ = busy; }
  bool IsActive() const;
  Point Middle() const { return bounds_.Middle(); }
  Rect Inside() const;
  void SetColour(Colour colour) { colour_ = colour; }

  bool Ours() const override { return false; }
  Rect Area() const override { return bounds_; }
  bool Shown() const override { return shown_; }
  bool TopMost() const override { return topMost_; }
  void Paint(Surface& screen) override;
  void OnPointer(const PointerInput& input) override;

 protected:
  MemoryDesktop& Desktop() const { return desktop_; }
  bool Busy() const { return busy_; }
  virtual void PaintInside(Surface& /*screen*/, const Rect& /*inside*/) {}
  virtual void OnPress(Point /*screen*/) {}

 private:
  MemoryDesktop& desktop_;
  std::u16string title_;
  Rect bounds_;
  bool shown_ = false;
  bool topMost_ = false;
  bool busy_ = false;
  Colour colour_ = 0xFFFFFF;
};

/// A window with one text: keys, Enter, Tab, arrows, the clipboard's keys, and text dropped on it.
class ForeignEditor : public ForeignWindow {
 public:
  using ForeignWindow::ForeignWindow;
  virtual EditText& Edit() = 0;
  const EditText& Edit() const { return const_cast<ForeignEditor*>(this)->Edit(); }

  std::u16string Text() const { return Edit().Text(); }
  int Caret() const { return Edit().Caret(); }
  void SetText(std::u16string_view text) { Edit().SetText(text); }
  /// Keys of each kind that reached it, the releases not counted.
  int KeysTaken() const { return keysTaken_; }
  /// Starts a drag of the selected text; the user's left button must be down.
  void BeginDrag();

  void OnKey(const KeyInput& input) override;
  DropEffect OnDragOver(const DragEvent& event) override;
  DropEffect OnDropped(const DragEvent& event) override;

 protected:
  void PaintInside(Surface& screen, const Rect& inside) override;
  void OnPress(Point screen) override;

 private:
  int keysTaken_ = 0;
};

class ForeignTextEditor : public ForeignEditor {
 public:
  ForeignTextEditor(MemoryDesktop& desktop, const Rect& bounds = {100, 80, 620, 480},
                    std::u16string_view title = u"Editor");
  EditText& Edit() override { return edit_; }

 private:
  EditText edit_;
};

/// Keeps the formats of Rich Text that is pasted.
class ForeignRichEditor : public ForeignEditor {
 public:
  ForeignRichEditor(MemoryDesktop& desktop, const Rect& bounds = {100, 80, 620, 480},
                    std::u16string_view title = u"Textverarbeitung");
  RichEdit& Edit() override { return edit_; }
  std::vector<std::pair<int, int>> BoldRanges() const { return edit_.BoldRanges(); }

 private:
  RichEdit edit_;
};

}  // namespace platform
