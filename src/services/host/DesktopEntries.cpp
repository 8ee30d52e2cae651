#include "services/host/DesktopEntries.h"

#include <algorithm>
#include <vector>

#include "services/host/KeyFile.h"

namespace tagsmith {
namespace {

// What a backslash has to stand before inside of quotes.
constexpr std::string_view kEscapedInQuotes = "\"`$\\";
constexpr std::string_view kReserved = " \t\r\n\"'\\><~|&;$*?#()`";

std::string QuotedArgument(std::string_view argument) {
  std::string quoted;
  for (const char c : argument) {
    if (kEscapedInQuotes.find(c) != std::string_view::npos) quoted += '\\';
    quoted += c;
    if (c == '%') quoted += '%';
  }
  const bool isPlain = argument.find_first_of(kReserved) == std::string_view::npos;
  return isPlain ? quoted : '"' + quoted + '"';
}

std::string Entry(std::string_view key, std::string_view text) {
  return std::string(key).append("=").append(EscapeKeyFileText(text)).append("\n");
}

}  // namespace

std::string ExecValue(const std::string& program) {
  std::vector<std::string> arguments = {program};
  // The program itself may not hold an equals sign, and some desktops look for it with its percent
  // signs still doubled. As an argument it may hold anything.
  if (program.find_first_of("=%") != std::string::npos) {
    arguments.insert(arguments.begin(), {"sh", "-c", R"(exec "$0" "$@")"});
  }
  std::string line;
  for (const std::string& argument : arguments) line += QuotedArgument(argument) + ' ';
  return EscapeKeyFileText(line + "%f");
}

std::string ProgramOfExecValue(std::string_view value) {
  const std::string line = UnescapeKeyFileText(value);
  if (!line.starts_with('"')) return line.substr(0, line.find_first_of(" \t"));
  std::string program;
  for (std::size_t i = 1; i < line.size() && line[i] != '"'; ++i) {
    if (line[i] == '\\' && i + 1 < line.size()) ++i;
    program += line[i];
  }
  return program;
}

std::string ApplicationEntry(const ProgramOffer& offer) {
  std::string entry = "[Desktop Entry]\n";
  entry += Entry("Type", "Application");
  entry += Entry("Name", offer.name);
  entry += Entry("Icon", offer.icon);
  entry += Entry("TryExec", offer.program);
  entry.append("Exec=").append(ExecValue(offer.program)).append("\n");
  entry += Entry("Terminal", "false");
  entry += Entry("StartupNotify", "true");
  entry += Entry("NoDisplay", "true");
  entry += Entry("MimeType", offer.mimeType + ';');
  // The lowest, for the desktops that choose by it among applications the user has not chosen from.
  entry += Entry("InitialPreference", "0");
  return entry;
}

std::string ServiceMenu(const ProgramOffer& offer) {
  std::string entry = "[Desktop Entry]\n";
  entry += Entry("Type", "Service");
  entry += Entry("X-KDE-ServiceTypes", "KonqPopupMenu/Plugin");
  entry += Entry("MimeType", offer.mimeType + ';');
  entry += Entry("X-KDE-Priority", "TopLevel");
  // One file at a time, as the program takes one.
  entry += Entry("X-KDE-MaxNumberOfUrls", "1");
  entry += Entry("Actions", "edit;");
  entry += "\n[Desktop Action edit]\n";
  entry += Entry("Name", offer.name);
  entry += Entry("Icon", offer.icon);
  entry.append("Exec=").append(ExecValue(offer.program)).append("\n");
  return entry;
}

}  // namespace tagsmith
