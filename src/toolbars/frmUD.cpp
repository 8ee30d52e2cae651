#include "toolbars/frmUD.h"

#include <utility>
#include <vector>

namespace tagsmith::toolbars {
namespace {

// Room for two lines of a tag. Twips.
constexpr Twips kFieldWidth = 2100;
constexpr Twips kFieldHeight = 690;
constexpr int kHalf = kUserButtonCount / 2;

}  // namespace

frmUD::frmUD(Application& application)
    : Form(application.platform, "frmUD"), application_(application) {
  SetCaption("Define User Buttons");
  cmdSave.SetCaption("&Save");
  cmdCancel.SetCaption("&Cancel");
  for (int i = 0; i < kUserButtonCount; ++i) {
    const std::string number = std::to_string(i + 1);
    MyLabel(2 * i).SetCaption("Opening Tag #" + number);
    MyLabel(2 * i + 1).SetCaption("Closing Tag #" + number);
    for (TextBox* field : {&txtUDO(i), &txtUDC(i)}) {
      field->SetMultiLine(true);
      field->SetWidth(kFieldWidth);
      field->SetHeight(kFieldHeight);
    }
  }
  SetArrangement(Column({Row({Half(0), Line1, Half(kHalf)}), ButtonRow({cmdSave, cmdCancel})}));

  onLoad = [this] { Form_Load(); };
  cmdSave.onClick = [this] { cmdSave_Click(); };
  cmdCancel.onClick = [this] { Unload(); };
}

Arrangement frmUD::Half(int first) {
  std::vector<Arrangement> cells;
  for (int i = first; i < first + kHalf; ++i) {
    cells.push_back(Column({MyLabel(2 * i), txtUDO(i)}));
    cells.push_back(Column({MyLabel(2 * i + 1), txtUDC(i)}));
  }
  return Grid(2, std::move(cells));
}

void frmUD::Form_Load() {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    txtUDO(i).SetText(application_.gUserOpenTags[index]);
    txtUDC(i).SetText(application_.gUserCloseTags[index]);
  }
}

void frmUD::cmdSave_Click() {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    application_.gUserOpenTags[index] = txtUDO(i).Text();
    application_.gUserCloseTags[index] = txtUDC(i).Text();
  }
  Unload();
}

}  // namespace tagsmith::toolbars
