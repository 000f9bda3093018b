// Makes the native controls of the in-process desktop.
#pragma once

#include "platform/controls.h"

namespace platform {

class MemoryDesktop;

class MemoryControls : public Controls {
 public:
  explicit MemoryControls(MemoryDesktop& desktop) : desktop_(desktop) {}

  std::unique_ptr<TextBox> NewTextBox(Pane& parent, const Rect& bounds,
                                      const TextBoxStyle& style) override;
  std::unique_ptr<RichTextBox> NewRichTextBox(Pane& parent, const Rect& bounds,
                                              const TextBoxStyle& style) override;
  std::unique_ptr<DropDownList> NewDropDownList(Pane& parent, const Rect& bounds) override;
  std::unique_ptr<ListBox> NewListBox(Pane& parent, const Rect& bounds) override;
  std::unique_ptr<CheckBox> NewCheckBox(Pane& parent, const Rect& bounds,
                                        std::u16string_view caption) override;
  std::unique_ptr<OptionButton> NewOptionButton(Pane& parent, const Rect& bounds,
                                                std::u16string_view caption,
                                                bool startsGroup) override;
  std::unique_ptr<Slider> NewSlider(Pane& parent, const Rect& bounds) override;
  std::unique_ptr<Label> NewLabel(Pane& parent, const Rect& bounds, std::u16string_view caption,
                                  const LabelStyle& style) override;
  std::unique_ptr<Frame> NewFrame(Pane& parent, const Rect& bounds,
                                  std::u16string_view caption) override;
  std::unique_ptr<TreeView> NewTreeView(Pane& parent, const Rect& bounds) override;

 private:
  /// Null when the parent is a husk or the call is to fail.
  template <class T, class... Arguments>
  std::unique_ptr<T> New(std::string_view call, Pane& parent, const Rect& bounds,
                         Arguments&&... arguments);

  MemoryDesktop& desktop_;
};

}  // namespace platform
