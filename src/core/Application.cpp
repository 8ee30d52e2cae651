#include "core/Application.h"

#include "core/SettingsKeys.h"
#include "services/Dialogs.h"
#include "services/SettingsStore.h"

namespace tagsmith {
namespace {

std::string Numbered(std::string_view key, int number) {
  return std::string(key) + std::to_string(number);
}

}  // namespace

std::string Application::GetSetting(std::string_view section, std::string_view key,
                                    std::string_view fallback) const {
  return platform.settings.GetSetting(kApplicationTitle, section, key, fallback);
}

void Application::SaveSetting(std::string_view section, std::string_view key,
                              std::string_view value) {
  platform.settings.SaveSetting(kApplicationTitle, section, key, value);
  TellOfLostSettings();
}

// Once in a run, and not before there is a form that can tell.
void Application::TellOfLostSettings() {
  if (toldOfLostSettings_ || platform.forms.Active() == nullptr) return;
  const std::string trouble = platform.settings.Trouble();
  if (trouble.empty()) return;
  toldOfLostSettings_ = true;
  MsgBox(*platform.forms.Active(),
         "The settings are kept until Tagsmith ends, but cannot be stored:\n\n" + trouble,
         kInformationIcon, Title());
}

std::string Application::GetSetting(const Setting& setting) const {
  return GetSetting(setting.section, setting.key, setting.fallback);
}

void Application::SaveSetting(const Setting& setting, std::string_view value) {
  SaveSetting(setting.section, setting.key, value);
}

std::string Application::GetSetting(const Setting& setting, int number) const {
  return GetSetting(setting.section, Numbered(setting.key, number), setting.fallback);
}

void Application::SaveSetting(const Setting& setting, int number, std::string_view value) {
  SaveSetting(setting.section, Numbered(setting.key, number), value);
}

int Application::MsgBox(Form& owner, std::string_view prompt, int flags, std::string_view title) {
  return platform.dialogs.MsgBox(owner, prompt, flags, title);
}

std::string Application::InputBox(Form& owner, std::string_view prompt, std::string_view title,
                                  std::string_view initial) {
  return platform.dialogs.InputBox(owner, prompt, title, initial);
}

}  // namespace tagsmith
