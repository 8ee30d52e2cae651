#pragma once

#include <string>
#include <string_view>

namespace tagsmith {

/// A program as the desktop is to offer it. Texts are UTF-8, paths are host paths.
struct ProgramOffer {
  std::string program;
  std::string icon;  ///< A path, or the name of an icon of the desktop's theme.
  std::string name;
  std::string mimeType;
};

/// The value of the key Exec that starts `program` with the path of one file: the Desktop Entry
/// Specification, "The Exec key".
std::string ExecValue(const std::string& program);

/// The program named by a value of the key Exec; empty when there is none.
std::string ProgramOfExecValue(std::string_view value);

/// An application that stands in no menu of programs, only with files: the Desktop Entry
/// Specification, "Recognized desktop entry keys".
std::string ApplicationEntry(const ProgramOffer& offer);

/// The same as an entry in the context menu of KDE's file manager: KDE's "Creating Dolphin service
/// menus".
std::string ServiceMenu(const ProgramOffer& offer);

}  // namespace tagsmith
