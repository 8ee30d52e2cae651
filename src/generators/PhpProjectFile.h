#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tagsmith::generators {

/// What a project file keeps of the PHP Database Dialog.
struct PhpProject {
  std::string dsn;
  std::string table;
  std::string user;
  std::string password;  ///< In clear, in the file too.
  std::string fields;

  bool operator==(const PhpProject&) const = default;
};

/// The text of a project file: five lines, each a value in quotes, a quote in it left as it is.
std::string WriteProject(const PhpProject& project);

/// The project that `text` describes, nothing for a text that is no whole project file. A value
/// runs to a quote at a line's end behind which the next value opens, the last one to the last
/// quote at a line's end: quotes and line breaks in a value come back.
std::optional<PhpProject> ReadProject(std::string_view text);

}  // namespace tagsmith::generators
