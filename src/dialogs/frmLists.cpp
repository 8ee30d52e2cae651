#include "dialogs/frmLists.h"

#include <string>

#include "core/Application.h"
#include "dialogs/DialogParts.h"

namespace tagsmith::dialogs {
namespace {

// What `gListStart` becomes for each of the options.
constexpr const char* kStarts[] = {"1", "I", "A", "a"};

// The chosen one, -1 for none.
int ChosenOf(const ControlArray<OptionButton>& options) {
  int index = options.Count() - 1;
  while (index >= 0 && !options(index).Value()) --index;
  return index;
}

Arrangement Stacked(const ControlArray<OptionButton>& options) {
  std::vector<Arrangement> all;
  all.reserve(static_cast<std::size_t>(options.Count()));
  for (int i = 0; i < options.Count(); ++i) all.emplace_back(options(i));
  return Column(std::move(all));
}

}  // namespace

frmLists::frmLists(Application& application)
    : Form(application.platform, "frmLists"), application_(application) {
  SetCaption("List Dialog");
  cmdInsert.SetCaption("Insert");
  cmdCancel.SetCaption("Cancel");
  SetUpItemSlider(MySlider, lblItems);
  SetDefaultButton(cmdInsert);
  SetArrangement(Column({
      Row({Group(fraType, Stacked(optList)), Group(fraOptions, Stacked(optAttributes))}),
      Group(fraNumber, Row({MySlider, lblItems})),
      ButtonRow({cmdInsert, cmdCancel}),
  }));

  onLoad = [this] { Form_Load(); };
  optList.Bind(&OptionButton::onClick, [this](int index) { fraOptions.SetEnabled(index == 0); });
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmLists::Form_Load() {
  optList(0).SetValue(true);
  application_.gListStart.clear();
  application_.gListKind = kNoList;
}

void frmLists::cmdInsert_Click() {
  application_.gListItemCount = MySlider.Value();
  application_.gListKind = ChosenOf(optList);
  const int start = ChosenOf(optAttributes);
  if (start >= 0) application_.gListStart = kStarts[start];
  Unload();
}

void frmLists::cmdCancel_Click() {
  application_.gListKind = kNoList;
  Unload();
}

}  // namespace tagsmith::dialogs
