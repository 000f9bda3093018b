// The sidebar's edge window: one pixel wide at the right edge of the screen, never seen. It catches
// the pointer and opens the wheel in its column shape.
#pragma once

#include <memory>
#include <optional>

#include "platform/Form.h"
#include "platform/pump.h"

namespace dorvalin {

inline constexpr int kBarAtOnce = 0;  ///< RightBarMode: on contact
inline constexpr int kBarOnClick = 1;
inline constexpr int kBarDelayed = 2;  ///< a short time after contact

class frmRight final : public platform::Form {
 public:
  frmRight();
  static frmRight* Instance();

  /// Takes its place by RightBarArea; any other value than 0 and 1 leaves it where it is.
  void SetSize();
  /// Opens the column, or brings the hidden one back.
  void ShowRightBar();

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnMouseMove(const platform::MouseEvent&) override;
  void OnMouseUp(platform::Button, const platform::MouseEvent&) override { ShowRightBar(); }
  platform::DropEffect OnDrag(const platform::DragEvent& event) override;
  void DelayTick();

  std::unique_ptr<platform::Timer> tmrDelay_;
};

/// The part of the right edge that a RightBarArea covers; none for a value that is none.
[[nodiscard]] std::optional<platform::Rect> EdgeArea(int rightBarArea, platform::Size screen);

}  // namespace dorvalin
