#include "sitetools/frmRTFDialog.h"

#include <cstddef>
#include <optional>

#include "core/Hourglass.h"
#include "services/CaseFold.h"
#include "services/Error.h"
#include "services/Platform.h"
#include "services/RtfConversion.h"
#include "services/Utf8.h"
#include "sitetools/PaintPace.h"

namespace tagsmith::sitetools {
namespace {

constexpr int kEndingLength = 3;

// Where the last three characters of `name` begin; nothing for a shorter name.
std::optional<std::size_t> EndingStart(std::string_view name) {
  std::size_t start = name.size();
  for (int i = 0; i < kEndingLength; ++i) {
    if (start == 0) return std::nullopt;
    start = SnapToCharacter(name, start - 1);
  }
  return start;
}

bool IsRtfName(std::string_view name) {
  const std::optional<std::size_t> start = EndingStart(name);
  return start && EqualWithoutCase(name.substr(*start), "rtf");
}

std::string PageName(std::string_view name) {
  const std::optional<std::size_t> start = EndingStart(name);
  if (!start) throw Error(ErrorCode::kOther, "The name is too short");
  return std::string(name.substr(0, *start)) + "html";
}

}  // namespace

frmRTFDialog::frmRTFDialog(Application& application)
    : FileSelectionForm(application, "frmRTFDialog", "RTF to HTML Conversion Dialog",
                        {.select = "STEP 2 - Select the RTF File(s) To Convert",
                         .leave = "STEP 4 - Click Cancel When Finished"}) {
  SetArrangement(Arranged());
  cmdSelectAll.onClick = [this] { SelectFiles(IsRtfName); };
  cmdStart.onClick = [this] { cmdStart_Click(); };
}

Arrangement frmRTFDialog::Arranged() {
  return Column({Row({DirectoryStep(), SelectionStep()}), Label4, Row({cmdStart}),
                 Row({Label8, MyProgress}), Label10, ButtonRow({cmdCancel})});
}

void frmRTFDialog::cmdStart_Click() {
  if (SelectedCount() == 0) {
    Inform("You Must Select At Least One RTF File", kSorryTitle);
    return;
  }
  std::string_view result = "The Files Have Been Converted";
  try {
    ConvertFiles();
  } catch (const std::exception&) {  // The files before it stay converted.
    result = "The Was An Error Converting The Files";
  }
  Inform(result, Caption());
  MyProgress.SetValue(0);
}

void frmRTFDialog::ConvertFiles() {
  const Hourglass hourglass(*this);
  PaintPace pace(*this);
  const std::string directory = Directory();
  ForEachSelected([&](const std::string& name) {
    const std::string page = directory + PageName(name);
    pace.Step();
    GetPlatform().rtf.ScroogeConvertFile(directory + name, page, 0, "Tagsmith RTF to HTML Dialog",
                                         "0", "0", "Arial", 0);
  });
}

}  // namespace tagsmith::sitetools
