// The host: a borderless window that holds one panel. It is attached to the pointer's wheel,
// attached to the sidebar's wheel, or free.
#pragma once

#include <memory>

#include "core/PanelHost.h"
#include "look/ctlButton.h"
#include "platform/controls.h"
#include "selector/HostLayout.h"
#include "selector/Panel.h"

namespace dorvalin {

class frmBG;

class frmMenu final : public PanelHost {
 public:
  frmMenu();

  [[nodiscard]] bool Free() const override { return state_.free; }
  [[nodiscard]] bool Vertical() const override { return state_.vertical; }
  void SetVertical(bool vertical) { state_.vertical = vertical; }
  [[nodiscard]] int Index() const { return Index_; }
  /// Null where the function's panel is not there.
  [[nodiscard]] Panel* aCtrl() const { return aCtrl_.get(); }

  void DoFree() override;
  /// First initialisation.
  void DoLoad();
  void DoKeyDown(platform::KeyEvent& event);
  enum class Reuse { No, Yes };
  /// Opens the panel of a function, or keeps the one it holds, and positions the host beside its
  /// wheel; the wheel shows it. `below`: the wheel lies in the screen's lower half, the host above
  /// it.
  void Init(int index, bool below, Reuse reuse);

  bool CallPanel(std::string_view operation, int argument) override;
  void PanelShownAgain();

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnResize() override;
  void OnFormKey(platform::KeyEvent& event) override { DoKeyDown(event); }
  void OnMouseDown(platform::Button button, const platform::MouseEvent& event) override;

  void MakeControls();
  void LayOut();
  void PlaceControls(const HostParts& parts);
  void Paint(const HostParts& parts);
  void PaintBubble();
  void CloseByButton();
  void PopUpPanelMenu();
  void FollowAddress();
  [[nodiscard]] platform::Point MenuPoint(const HostParts& parts) const;
  [[nodiscard]] HostSizes Sizes() const;
  [[nodiscard]] frmBG* Wheel() const;

  int Index_ = 0;
  HostState state_;
  int LabelRow_ = 0;
  int AddressWidth_ = 0;
  std::unique_ptr<Panel> aCtrl_;
  std::unique_ptr<ctlButton> btnClose_, btnFree_, btnMenu_, btnRight_;
  std::unique_ptr<platform::Label> lblHelp_, lblAddress_;
};

}  // namespace dorvalin
