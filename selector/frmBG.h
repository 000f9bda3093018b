// The function wheel: eight bubbles that seem to float on the desktop, over a copy of the screen
// behind the window. One instance is the ring at the pointer, another the column of the sidebar.
#pragma once

#include <memory>

#include "core/HiResTimer.h"
#include "core/PanelHost.h"
#include "platform/pump.h"
#include "platform/surface.h"
#include "selector/FocusWatch.h"
#include "selector/WheelGeometry.h"

namespace dorvalin {

class frmMenu;

class frmBG final : public FunctionWheel {
 public:
  explicit frmBG(bool vertical);

  int ActiveBubble = 0;  ///< the open function, 0 for none yet
  const bool Vertical;   ///< column instead of ring
  frmMenu* Host = nullptr;

  enum class Reuse { No, Yes };
  /// Opens it. False: it was unloaded meanwhile, a column also because the pointer left the edge.
  bool Init(Reuse reuse);
  /// Positions the window and captures the screen under it.
  void InitBG(Reuse reuse);
  /// Replaces what was captured; an empty picture changes nothing.
  void StandOn(platform::Surface screen);
  /// Makes a function active, with a new host or with the one handed in. `quiet`: the host is shown
  /// without the activation.
  void SetActiveBubble(int index, bool quiet, frmMenu* host = nullptr);
  void FadeInMenu();
  /// `fast`: a frame of a motion.
  void DrawMe(bool fast, int opacity);
  void CloseMe() override;
  /// Brings a hidden column back, with its host.
  void ShowMe();
  /// Centre of a function's bubble inside the window.
  [[nodiscard]] platform::Point BubbleCentre(int index) const;
  /// Hands the open panel over to the sidebar.
  void SetInLine();
  /// Starts the watch over focus and pointer, unless it was closed meanwhile.
  void WatchFocus();

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnActivate(platform::Activation activation) override;
  void OnFormKey(platform::KeyEvent& event) override;
  void OnMouseMove(const platform::MouseEvent& event) override;
  void OnMouseDown(platform::Button button, const platform::MouseEvent& event) override;
  platform::DropEffect OnDrag(const platform::DragEvent& event) override;

  void LooseFocusTick();
  void MouseOutTick();
  void SetHover(int bubble);
  void OpenHost(int index, frmMenu* handedIn);
  void ShowHost(bool quiet);
  bool PointerLeftEdge() const;

  void AnimateOpening(int function);
  void TurnRing(double target);
  void SlideBubble(int from);
  enum class Slide { In, Out };
  void SlideColumn(Slide direction);
  void FinishMotion();
  template <class Step>
  void Frame(Step step);

  [[nodiscard]] BubblePlaces Places() const;
  [[nodiscard]] bool IsOurs(const platform::TopWindow* window) const;
  [[nodiscard]] bool PointerOverOurs() const;
  [[nodiscard]] FocusSample SampleFocus() const;
  [[nodiscard]] SidebarZone Zone() const;

  int LastActive_ = 0;  ///< stored as the last function when only the menu was used
  int HoverBubble_ = 0;
  FocusWatch watch_;
  bool Animating_ = false;  ///< clicks, hover and the focus watch do nothing
  bool Ready_ = false;      ///< Init is finished; a click before that is ignored
  double Rotation_ = 0;
  int Radius_ = kRestRadius;
  bool Flipped_ = false;
  ColumnSlide slide_;
  platform::Surface picBG_;
  std::unique_ptr<platform::Timer> tmrLooseFocus_;
  std::unique_ptr<platform::Timer> tmrMouseOut_;
};

/// The loaded wheels; null for none.
[[nodiscard]] frmBG* PointerWheel();
[[nodiscard]] frmBG* SideWheel();

/// Loads the wheel at the pointer and opens it.
void OpenPointerWheel();

}  // namespace dorvalin
