// Makes the system's own controls.
#pragma once

#include "platform/controls.h"

namespace platform {

class Win32Controls final : public Controls {
 public:
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
};

}  // namespace platform
