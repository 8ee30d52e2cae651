#pragma once

#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::sitetools {

/// The first step to an index page: chooses its format, which goes into `gExportFormat`, and leads
/// on to `frmFileManDialog`.
class frmExportWizard : public Form {
 public:
  explicit frmExportWizard(Application& application);

  Frame fraOptions{*this, "fraOptions", "Choose A Format For The HTML File"};
  ControlArray<OptionButton> optChoices{
      *this, "optChoices", {"Expandable Menu", "Indented List", "Unordered List", "Ordered List"}};
  Frame fraPreview{*this, "fraPreview", "Preview"};
  ControlArray<Image> imgPreview{*this, "imgPreview", 4};
  CommandButton cmdNext{*this, "cmdNext"};

 private:
  void Form_Load();
  void optChoices_Click(int Index);
  void cmdNext_Click();

  Application& application_;
};

}  // namespace tagsmith::sitetools
