// The sidebar's question at the end of the program.
#pragma once

#include <memory>

#include "look/ctlButton.h"
#include "platform/Form.h"
#include "platform/controls.h"

namespace dorvalin {

class frmRightBarMsg final : public platform::Form {
 public:
  frmRightBarMsg();

 private:
  void OnLoad() override;
  void OnUnload() override;
  void OnFormKey(platform::KeyEvent& event) override;
  void AnswerWith(bool showAtStart);

  std::unique_ptr<platform::CheckBox> chkDSA_;
  std::unique_ptr<platform::Label> lblQuestion_;
  std::unique_ptr<ctlButton> btnOK_, btnCancel_;
};

}  // namespace dorvalin
