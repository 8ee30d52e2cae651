#include "sitetools/frmExportWizard.h"

#include <string>

#include "core/Application.h"
#include "core/general1.h"
#include "services/Error.h"
#include "services/Pictures.h"
#include "sitetools/frmFileManDialog.h"

namespace tagsmith::sitetools {
namespace {

struct Choice {
  const char* format;
  const char* picture;  ///< A sample page, beside the program.
};

// In the order of the option buttons.
constexpr Choice kChoices[] = {{"EMenu", "preview_emenu.png"},
                               {"IList", "preview_ilist.png"},
                               {"UList", "preview_ulist.png"},
                               {"OList", "preview_olist.png"}};

}  // namespace

frmExportWizard::frmExportWizard(Application& application)
    : Form(application.platform, "frmExportWizard"), application_(application) {
  SetCaption("File Management Dialog - Export Wizard");
  cmdNext.SetCaption("Next  > >");
  SetDefaultButton(cmdNext);
  // One picture is on show: they stand at the same place.
  SetArrangement(Column(
      {Row({Group(fraOptions, Column({optChoices(0), optChoices(1), optChoices(2), optChoices(3)})),
            Group(fraPreview,
                  Column({imgPreview(0), imgPreview(1), imgPreview(2), imgPreview(3)}))}),
       ButtonRow({cmdNext})}));
  onLoad = [this] { Form_Load(); };
  optChoices.Bind(&OptionButton::onClick, [this](int index) { optChoices_Click(index); });
  cmdNext.onClick = [this] { cmdNext_Click(); };
}

void frmExportWizard::Form_Load() {
  for (int i = 0; i < imgPreview.Count(); ++i) {
    try {
      imgPreview(i).SetPicture(application_.platform.pictures.LoadPicture(
          AddBackslash(application_.Path()) + kChoices[i].picture));
    } catch (const Error&) {  // The preview stays blank.
    }
  }
  optChoices(0).SetValue(true);
}

void frmExportWizard::optChoices_Click(int Index) {
  for (int i = 0; i < imgPreview.Count(); ++i) imgPreview(i).SetVisible(i == Index);
}

void frmExportWizard::cmdNext_Click() {
  int chosen = 0;
  while (!optChoices(chosen).Value()) ++chosen;
  application_.gExportFormat = kChoices[chosen].format;
  application_.Instance<frmFileManDialog>().Show();
  Unload();
}

}  // namespace tagsmith::sitetools
