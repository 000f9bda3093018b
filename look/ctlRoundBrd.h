// A rounded frame with a soft shadow, drawn round whatever lies in it. Its inside is plain.
//
// The frame is coloured once, 81 x 81 pixels, from a grey-scale mask; every repaint stretches it.
#pragma once

#include <memory>

#include "platform/window.h"

namespace dorvalin {

class ctlRoundBrd final : private platform::PaneEvents {
 public:
  /// On a window or pane of the caller's, which must outlive it. What lies in the frame are
  /// children of Window().
  ctlRoundBrd(platform::Pane& parent, const platform::Rect& bounds);
  ctlRoundBrd(const ctlRoundBrd&) = delete;
  ctlRoundBrd& operator=(const ctlRoundBrd&) = delete;

  /// What it shows now. Only where it has a window.
  [[nodiscard]] const platform::Surface& hdc() const { return pane_->Canvas(); }
  /// Null where the desktop gave it no window.
  [[nodiscard]] platform::Pane* Window() { return pane_.get(); }

 private:
  void OnResize() override;
  void OnVisible(bool visible) override;
  void TakeColours();
  void BuildFrame();
  void DrawFrame();

  platform::Colour FaceColor_ = 0;
  platform::Colour FrameColor_ = 0;
  platform::Colour ShadowColor_ = 0;
  bool PendingDraw_ = false;  ///< the size changed while it was not seen
  bool Prepared_ = false;     ///< picTmp_ holds the coloured frame
  bool HighColor_ = false;
  platform::Surface picTmp_;
  std::unique_ptr<platform::Pane> pane_;
};

}  // namespace dorvalin
