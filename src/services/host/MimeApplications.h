#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "services/host/DesktopPlaces.h"

namespace tagsmith {

/// Which applications open the files of a type: "Association between MIME types and applications",
/// 1.0. Applications are named by the ids of their desktop entries, as "org.gnome.gedit.desktop".
/// Nothing throws for what the disk holds; what cannot be read is not there.
class MimeApplications {
 public:
  /// `places` outlives this.
  explicit MimeApplications(const DesktopPlaces& places) : places_(places) {}

  /// The one that the user, the system or the desktop has made the default of that very type:
  /// "Default Application".
  std::optional<std::string> ChosenDefault(const std::string& mimeType) const;

  /// Whether a program finds one as well that looks only at the first application of the first line
  /// of each list, as xdg-mime does.
  bool IsPlainlyChosen(const std::string& mimeType) const;

  /// All that are registered for that very type and installed; where none has been chosen, the
  /// first is the default: "Adding/removing associations". Before them come, but on KDE, which does
  /// not know them, the defaults of the older files called defaults.list.
  std::vector<std::string> Openers(const std::string& mimeType) const;

  /// The file of a desktop entry: the Desktop Entry Specification, "Desktop File ID".
  std::optional<std::string> FindEntry(const std::string& id) const;

  bool IsInstalled(const std::string& id) const;

 private:
  using Ids = std::vector<std::string>;

  std::vector<std::string> DefaultLists() const;
  bool IsOnKde() const;
  void SortByPreference(std::span<std::string> ids) const;

  const DesktopPlaces& places_;
};

}  // namespace tagsmith
