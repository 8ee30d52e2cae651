#pragma once

#include "sitetools/FileSelectionForm.h"

namespace tagsmith::sitetools {

/// Turns the selected RTF files of a directory into web pages beside them.
class frmRTFDialog : public FileSelectionForm {
 public:
  explicit frmRTFDialog(Application& application);

  Label Label4{*this, "Label4", "STEP 3 - Click Start"};

 private:
  Arrangement Arranged();
  void cmdStart_Click();
  void ConvertFiles();
};

}  // namespace tagsmith::sitetools
