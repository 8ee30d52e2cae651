#include "dialogs/ListCommands.h"

#include <string>

#include "core/Application.h"
#include "core/frmMain.h"
#include "dialogs/ItemList.h"
#include "dialogs/frmListItems.h"
#include "dialogs/frmLists.h"

namespace tagsmith::dialogs {
namespace {

/// A button that inserts a list with the caret in its first item.
struct ListCommand {
  std::string_view control;
  ListKind kind;
};

constexpr ListCommand kCommands[] = {
    {"cmdOL", ListKind::kOrdered},
    {"cmdUL", ListKind::kUnordered},
    {"cmdDL", ListKind::kDefinition},
};

void InsertList(Application& application, ListKind kind) {
  frmMain& form = application.MainForm();
  const std::size_t start = form.txtEdit.SelStart();
  application.Instance<frmListItems>().Show(Modality::kModal);
  form.InsertText(EmptyList(kind, application.gListItemCount));
  form.txtEdit.SetFocus();
  form.txtEdit.SetSelStart(start + kIntoFirstItem);
}

void cmdFastList_Click(Application& application) {
  application.Instance<frmLists>().Show(Modality::kModal);
  if (application.gListKind == kNoList) return;
  const auto kind = static_cast<ListKind>(application.gListKind);
  application.MainForm().InsertText(
      RoomyList(kind, application.gListStart, application.gListItemCount));
}

void cmdSelect_Click(Application& application) {
  frmMain& form = application.MainForm();
  auto& items = application.Instance<frmListItems>();
  items.SetCaption("How Many Items In The Select?");
  items.Show(Modality::kModal);
  const std::string name = application.InputBox(form, "Name:", application.Title());
  form.InsertText(SelectList(name, application.gListItemCount));
}

}  // namespace

void BindListCommands(Application& application) {
  const frmMain& form = application.MainForm();
  for (const ListCommand& command : kCommands) {
    form.Get<CommandButton>(command.control).onClick = [&application, &command] {
      InsertList(application, command.kind);
    };
  }
  form.Get<CommandButton>("cmdFastList").onClick = [&application] {
    cmdFastList_Click(application);
  };
  form.Get<CommandButton>("cmdSelect").onClick = [&application] { cmdSelect_Click(application); };
}

}  // namespace tagsmith::dialogs
