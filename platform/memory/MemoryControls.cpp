#include "platform/memory/MemoryControls.h"

#include <utility>

#include "platform/memory/MemoryButtons.h"
#include "platform/memory/MemoryChoices.h"
#include "platform/memory/MemoryDesktop.h"
#include "platform/memory/MemoryPlainControls.h"
#include "platform/memory/MemoryRichTextBox.h"
#include "platform/memory/MemoryTextBox.h"
#include "platform/memory/MemoryTree.h"

namespace platform {

template <class T, class... Arguments>
std::unique_ptr<T> MemoryControls::New(std::string_view call, Pane& parent, const Rect& bounds,
                                       Arguments&&... arguments) {
  MemoryNode& node = dynamic_cast<MemoryNode&>(parent);
  if (!node.Alive() || desktop_.faults().Fails(call)) return nullptr;
  return std::make_unique<T>(desktop_, &node, bounds, std::forward<Arguments>(arguments)...);
}

std::unique_ptr<TextBox> MemoryControls::NewTextBox(Pane& parent, const Rect& bounds,
                                                    const TextBoxStyle& style) {
  return New<MemoryTextBox>("Controls.NewTextBox", parent, bounds, style);
}

std::unique_ptr<RichTextBox> MemoryControls::NewRichTextBox(Pane& parent, const Rect& bounds,
                                                            const TextBoxStyle& style) {
  return New<MemoryRichTextBox>("Controls.NewRichTextBox", parent, bounds, style);
}

std::unique_ptr<DropDownList> MemoryControls::NewDropDownList(Pane& parent, const Rect& bounds) {
  return New<MemoryDropDownList>("Controls.NewDropDownList", parent, bounds);
}

std::unique_ptr<ListBox> MemoryControls::NewListBox(Pane& parent, const Rect& bounds) {
  return New<MemoryListBox>("Controls.NewListBox", parent, bounds);
}

std::unique_ptr<CheckBox> MemoryControls::NewCheckBox(Pane& parent, const Rect& bounds,
                                                      std::u16string_view caption) {
  return New<MemoryCheckBox>("Controls.NewCheckBox", parent, bounds, caption);
}

std::unique_ptr<OptionButton> MemoryControls::NewOptionButton(Pane& parent, const Rect& bounds,
                                                              std::u16string_view caption,
                                                              bool startsGroup) {
  return New<MemoryOptionButton>("Controls.NewOptionButton", parent, bounds, caption, startsGroup);
}

std::unique_ptr<Slider> MemoryControls::NewSlider(Pane& parent, const Rect& bounds) {
  return New<MemorySlider>("Controls.NewSlider", parent, bounds);
}

std::unique_ptr<Label> MemoryControls::NewLabel(Pane& parent, const Rect& bounds,
                                                std::u16string_view caption,
                                                const LabelStyle& style) {
  return New<MemoryLabel>("Controls.NewLabel", parent, bounds, caption, style);
}

std::unique_ptr<Frame> MemoryControls::NewFrame(Pane& parent, const Rect& bounds,
                                                std::u16string_view caption) {
  return New<MemoryFrame>("Controls.NewFrame", parent, bounds, caption);
}

std::unique_ptr<TreeView> MemoryControls::NewTreeView(Pane& parent, const Rect& bounds) {
  return New<MemoryTree>("Controls.NewTreeView", parent, bounds);
}

}  // namespace platform
