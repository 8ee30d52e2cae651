#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace tagsmith {

/// What leads to one stored text.
struct SettingName {
  std::string application;
  std::string section;
  std::string key;

  bool operator<(const SettingName& other) const {
    return std::tie(application, section, key) <
           std::tie(other.application, other.section, other.key);
  }
  bool operator==(const SettingName&) const = default;
};

/// Texts and names may hold any bytes.
using SettingsTable = std::map<SettingName, std::string>;

/// The settings file: a JSON object of applications, each an object of sections, each an object of
/// keys and their texts. Bytes that are no UTF-8 are written as `ToStandIns` says.
std::string FormatSettings(const SettingsTable& settings);

struct ParsedSettings {
  SettingsTable settings;  ///< Whatever could be read.
  bool damaged = false;    ///< Something else was there besides.
};

/// Reads such a file. No bytes at all are a file without settings.
ParsedSettings ParseSettings(std::string_view json);

}  // namespace tagsmith
