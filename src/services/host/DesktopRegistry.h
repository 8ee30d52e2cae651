#pragma once

#include <string>

#include "services/Registry.h"
#include "services/host/DesktopPlaces.h"

namespace tagsmith {

/// The user's desktop as freedesktop.org describes it: a desktop entry and its association in the
/// user's own data folder, and the same entry for the context menu of KDE's file manager. There is
/// one such entry; a second offer replaces the first.
///
/// What is in the user's own folder comes before all else, so a new application would become the
/// default of its type where none has been chosen. There the applications that were registered
/// before are written down as the default, in their order, in the user's mimeapps.list, and so is a
/// choice that some programs overlook; that file is otherwise left alone. An application that is
/// the only one is the desktop's default by itself, until it is offered again beside another.
class DesktopRegistry final : public Registry {
 public:
  explicit DesktopRegistry(DesktopPlaces places = DesktopPlaces::OfThisSession());

  /// Nothing is offered unless the default could be kept. The error's text names the path.
  void OfferFor(std::string_view mimeType, std::string_view entryName) override;
  std::optional<std::string> SystemInformationTool() const override;

 private:
  void KeepDefault(const std::string& mimeType) const;
  std::vector<std::string> OtherOpeners(const std::string& mimeType) const;
  void AddToCache(const std::string& mimeType) const;
  std::string Icon() const;
  std::string GnomePanel() const;

  DesktopPlaces places_;
};

}  // namespace tagsmith
