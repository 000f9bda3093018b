// The flight of the bubbles from the ring to the screen's right edge: an overlay over a copy of the
// screen between the two.
#pragma once

#include "core/PanelHost.h"
#include "platform/surface.h"
#include "selector/WheelGeometry.h"

namespace dorvalin {

class frmAni final : public platform::Form {
 public:
  frmAni();

  /// Where the flight starts. `behindRing` is the screen under the ring's window.
  struct Start {
    platform::Rect ring;
    const platform::Surface* behindRing = nullptr;
    double rotation = 0;
    int active = 0;
  };
  /// Draws the start and shows it in front of everything, without the activation.
  void Init(const Start& start);
  /// The screen as it is without ring and flight, an area between ring and edge; empty when the
  /// screen could not be read.
  [[nodiscard]] platform::Surface ScreenBehind(const platform::Rect& area) const;
  /// Runs the flight until the bubbles stand in line.
  void InLine();

 private:
  [[nodiscard]] BubblePlaces PlacesAt(double progress) const;
  void Draw(const BubblePlaces& places);

  platform::Rect ring_;
  platform::Rect column_;
  double rotation_ = 0;
  int active_ = 0;
  platform::Surface background_;
};

}  // namespace dorvalin
