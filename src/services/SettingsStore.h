#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

/// The per-user settings: application, section and key lead to one text (UTF-8, any characters,
/// line breaks included). Keys are never deleted.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;

  /// The stored text, or `fallback` when the key is absent. Never fails.
  virtual std::string GetSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view fallback) const = 0;

  /// Stores the text at once. Never fails: what cannot be written is kept for the present run.
  virtual void SaveSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view value) = 0;

  /// What keeps texts from being stored for the next run: the place and the platform's reason, in
  /// UTF-8. Empty while all are stored.
  virtual std::string Trouble() const { return {}; }
};

}  // namespace tagsmith
