#pragma once

#include "dialogs/DialogParts.h"
#include "dialogs/FrameSets.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"

namespace tagsmith::dialogs {

/// Offers the layouts of a page of frames, each beside a sketch; the chosen page is the result.
class frmFrameDialog : public ResultForm {
 public:
  explicit frmFrameDialog(Application& application);

  ControlArray<PictureBox> picFrame1{*this, "picFrame1", kFrameSetCount};
  ControlArray<CommandButton> cmdChoice{*this, "cmdChoice", kFrameSetCount + 1};

 private:
  void Sketch(int layout);
  void cmdChoice_Click(int index);
};

}  // namespace tagsmith::dialogs
