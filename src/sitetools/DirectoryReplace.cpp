#include "sitetools/DirectoryReplace.h"

#include <exception>
#include <optional>
#include <utility>

#include "services/FileSystem.h"
#include "services/TextEncoding.h"
#include "sitetools/ReplaceText.h"

namespace tagsmith::sitetools {
namespace {

// Nothing for a file that is too large.
std::optional<DecodedText> LoadText(const FileSystem& files, std::string_view path) {
  std::optional<std::string> bytes = files.ReadFile(path, kFileSizeLimit);
  if (!bytes) return std::nullopt;
  return DecodeText(*std::move(bytes));
}

void SaveText(FileSystem& files, std::string_view path, const std::string& text,
              TextEncoding encoding) {
  files.WriteFile(path, EncodeText(text + "\r\n", encoding), Durability::kWritten);
}

}  // namespace

FileOutcome ReplaceInOneFile(FileSystem& files, std::string_view path, const TextSearch& find,
                             std::string_view replacement, std::string& text,
                             const std::function<void()>& onLoaded) {
  std::optional<DecodedText> loaded;
  try {
    loaded = LoadText(files, path);
  } catch (const std::exception&) {
    return FileOutcome::kUnreadable;
  }
  if (!loaded) return FileOutcome::kTooLarge;
  text = std::move(loaded->text);
  if (onLoaded) onLoaded();
  try {
    text = ReplaceInFile(text, find, replacement);
    SaveText(files, path, text, loaded->encoding);
  } catch (const std::exception&) {
    return FileOutcome::kNotWritten;
  }
  return FileOutcome::kWritten;
}

}  // namespace tagsmith::sitetools
