// The rich text box: a text box whose text has formats.
#pragma once

#include "platform/memory/MemoryTextBox.h"
#include "platform/memory/RichEdit.h"

namespace platform {

class MemoryRichTextBox final : public TextBoxOf<RichTextBox, RichEdit> {
 public:
  using TextBoxOf::TextBoxOf;
  void SetFont(const Font& font) override {
    TextBoxOf::SetFont(font);
    TheEdit().SetStandardFont(font);
  }
  std::string RichText() const override { return Alive() ? TheEdit().RichText() : ""; }
  bool SetRichText(std::string_view source) override {
    if (Fails("RichTextBox.SetRichText")) return false;
    bool taken = false;
    Apply([&] { taken = TheEdit().SetRichText(source); });
    return taken;
  }
  RichSelection Selection() const override { return TheEdit().Properties(); }
  void SetSelection(const RichSelection& properties) override {
    if (Fails("RichTextBox.SetSelection")) return;
    TheEdit().SetProperties(properties);
    Raise(events.Change);
  }
};

}  // namespace platform
