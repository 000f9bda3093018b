// Slider, label and frame.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/memory/ControlNode.h"

namespace platform {

class MemorySlider final : public ControlOf<Slider> {
 public:
  using ControlOf::ControlOf;
  void SetRange(int minimum, int maximum) override;
  void SetTickStep(int step) override;
  int Value() const override { return value_; }
  void SetValue(int value) override;

 protected:
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;
  void OnOwnKey(const KeyEvent& event) override;

 private:
  int XOf(int value) const;
  int ValueAt(int x) const;
  Rect Thumb() const;
  int Page() const;
  void Press(const MouseEvent& event, bool movedByHandler);

  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
  int tickStep_ = 0;
  std::optional<int> grip_;  ///< where the thumb is held, from its middle
};

class MemoryLabel final : public ControlOf<Label> {
 public:
  MemoryLabel(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
              std::u16string_view caption, const LabelStyle& style)
      : ControlOf(desktop, parent, bounds, false), caption_(caption), style_(style) {}
  void SetCaption(std::u16string_view caption) override {
    if (!Fails("Label.SetCaption")) caption_ = caption;
  }
  void SetPointer(const Pointer& pointer) override {
    if (!Fails("Label.SetPointer")) pointer_ = pointer;
  }
  const std::u16string& Caption() const { return caption_; }

 protected:
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;
  void OnPointerInput(const PointerInput& input, const MouseEvent& event) override;
  Pointer Shape() const override { return pointer_; }

 private:
  std::u16string caption_;
  LabelStyle style_;
  Pointer pointer_;
  bool armed_ = false;
};

class MemoryFrame final : public ControlOf<Frame> {
 public:
  MemoryFrame(MemoryDesktop& desktop, MemoryNode* parent, const Rect& bounds,
              std::u16string_view caption)
      : ControlOf(desktop, parent, bounds, false), caption_(caption) {}
  void SetCaption(std::u16string_view caption) override {
    if (!Fails("Frame.SetCaption")) caption_ = caption;
  }

 protected:
  bool LetsHitsThrough() const override { return true; }
  void PaintOn(Surface& screen, const Rect& place, const Rect& clip) override;

 private:
  std::u16string caption_;
};

}  // namespace platform
