#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "services/SettingsStore.h"
#include "services/host/SettingsJson.h"

namespace tagsmith {

/// The settings in one file of the user's, which several running programs may share: what one has
/// stored, the others find at their next reading, and none undoes another's keys.
///
/// A damaged file counts as far as it can be read. It is kept, under its name and ".damaged", when
/// the first text is stored. What cannot be written is tried again with each further text.
class HostSettings : public SettingsStore {
 public:
  /// `path` is the file's host path. Its folder is made, for the user alone, when it is needed.
  explicit HostSettings(std::string path = DefaultPath());

  /// tagsmith/settings.json in the desktop's folder for settings.
  static std::string DefaultPath();

  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view fallback) const override;
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override;
  std::string Trouble() const override;

 private:
  // Tells one state of the file from another; all 0 when there is none.
  struct Stamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;

    bool operator==(const Stamp&) const = default;
  };

  enum class State { kUnread, kGood, kDamaged, kOutOfReach };

  Stamp StampNow() const;
  void Refresh() const;
  void Read() const;
  void Store();
  void StoreLocked();
  void SetAsideDamagedFile() const;

  std::string path_;
  mutable State state_ = State::kUnread;
  mutable Stamp stamp_;
  mutable SettingsTable stored_;  ///< What the file held when it had `stamp_`.
  mutable std::string trouble_;   ///< Why the last reading or storing failed.
  SettingsTable unsaved_;         ///< Texts that are not in the file; they go before `stored_`.
};

}  // namespace tagsmith
