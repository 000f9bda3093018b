#include "platform/win32/Win32Controls.h"

#include "platform/win32/ChoiceControl.h"
#include "platform/win32/Win32Buttons.h"
#include "platform/win32/Win32Label.h"
#include "platform/win32/Win32RichTextBox.h"
#include "platform/win32/Win32Slider.h"
#include "platform/win32/Win32TextBox.h"
#include "platform/win32/Win32TreeView.h"
#include "platform/win32/WindowHandle.h"

namespace platform {
namespace {

template <typename Made, typename... Arguments>
std::unique_ptr<Made> MakeOn(Pane& parent, std::unique_ptr<Made> control,
                             const Arguments&... arguments) {
  const HWND handle = HandleOf(&parent);
  return handle && control->Make(handle, arguments...) ? std::move(control) : nullptr;
}

}  // namespace

std::unique_ptr<TextBox> Win32Controls::NewTextBox(Pane& parent, const Rect& bounds,
                                                   const TextBoxStyle& style) {
  return MakeOn(parent, std::make_unique<Win32TextBox>(), bounds, style);
}

std::unique_ptr<RichTextBox> Win32Controls::NewRichTextBox(Pane& parent, const Rect& bounds,
                                                           const TextBoxStyle& style) {
  return MakeOn(parent, std::make_unique<Win32RichTextBox>(), bounds, style);
}

std::unique_ptr<DropDownList> Win32Controls::NewDropDownList(Pane& parent, const Rect& bounds) {
  return MakeOn(parent, std::make_unique<Win32DropDownList>(), bounds);
}

std::unique_ptr<ListBox> Win32Controls::NewListBox(Pane& parent, const Rect& bounds) {
  return MakeOn(parent, std::make_unique<Win32ListBox>(), bounds);
}

std::unique_ptr<CheckBox> Win32Controls::NewCheckBox(Pane& parent, const Rect& bounds,
                                                     std::u16string_view caption) {
  return MakeOn(parent, std::make_unique<Win32CheckBox>(), bounds, caption);
}

std::unique_ptr<OptionButton> Win32Controls::NewOptionButton(Pane& parent, const Rect& bounds,
                                                             std::u16string_view caption,
                                                             bool startsGroup) {
  return MakeOn(parent, std::make_unique<Win32OptionButton>(), bounds, caption, startsGroup);
}

std::unique_ptr<Slider> Win32Controls::NewSlider(Pane& parent, const Rect& bounds) {
  return MakeOn(parent, std::make_unique<Win32Slider>(), bounds);
}

std::unique_ptr<Label> Win32Controls::NewLabel(Pane& parent, const Rect& bounds,
                                               std::u16string_view caption,
                                               const LabelStyle& style) {
  return MakeOn(parent, std::make_unique<Win32Label>(style), bounds, caption);
}

std::unique_ptr<Frame> Win32Controls::NewFrame(Pane& parent, const Rect& bounds,
                                               std::u16string_view caption) {
  return MakeOn(parent, std::make_unique<Win32Frame>(), bounds, caption);
}

std::unique_ptr<TreeView> Win32Controls::NewTreeView(Pane& parent, const Rect& bounds) {
  return MakeOn(parent, std::make_unique<Win32TreeView>(), bounds);
}

}  // namespace platform
