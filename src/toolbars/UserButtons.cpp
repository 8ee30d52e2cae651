#include "toolbars/UserButtons.h"

#include <string>

#include "core/Application.h"
#include "core/SettingsKeys.h"
#include "core/frmMain.h"
#include "services/Buttons.h"
#include "toolbars/frmUD.h"

namespace tagsmith::toolbars {
namespace {

std::string ToolTipOf(const std::string& open, const std::string& close) {
  return open.empty() ? "Not Defined" : open + " " + close;
}

void mnuUserButtons_Click(Application& application) {
  application.Instance<frmUD>().Show(Modality::kModal);
  SaveUD(application);
  AssignUDToolTips(application);
}

}  // namespace

void LoadUD(Application& application) {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    application.gUserOpenTags[index] = application.GetSetting(settings::kUserOpenTag, i + 1);
    application.gUserCloseTags[index] = application.GetSetting(settings::kUserCloseTag, i + 1);
  }
}

void SaveUD(Application& application) {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    application.SaveSetting(settings::kUserOpenTag, i + 1, application.gUserOpenTags[index]);
    application.SaveSetting(settings::kUserCloseTag, i + 1, application.gUserCloseTags[index]);
  }
}

void AssignUDToolTips(Application& application) {
  for (int i = 0; i < kUserButtonCount; ++i) {
    const auto index = static_cast<std::size_t>(i);
    application.MainForm()
        .Get<CommandButton>("cmdUD", i)
        .SetToolTipText(
            ToolTipOf(application.gUserOpenTags[index], application.gUserCloseTags[index]));
  }
}

void BindUserButtons(Application& application) {
  frmMain& form = application.MainForm();
  for (int i = 0; i < kUserButtonCount; ++i) {
    form.Get<CommandButton>("cmdUD", i).onClick = [&application,
                                                   index = static_cast<std::size_t>(i)] {
      application.MainForm().InsertAround(application.gUserOpenTags[index],
                                          application.gUserCloseTags[index]);
    };
  }
  form.mnuUserButtons.onClick = [&application] { mnuUserButtons_Click(application); };
  form.startup.loadUserButtons = [&application] { LoadUD(application); };
  form.startup.assignUserToolTips = [&application] { AssignUDToolTips(application); };
}

}  // namespace tagsmith::toolbars
