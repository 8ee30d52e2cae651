#include "services/host/OwnWords.h"

#include <QFile>
#include <QLockFile>
#include <algorithm>
#include <filesystem>
#include <optional>

#include "services/Error.h"
#include "services/Lines.h"
#include "services/Utf8.h"
#include "services/host/FileReader.h"
#include "services/host/HostError.h"
#include "services/host/MakeFolder.h"
#include "services/host/SafeWriter.h"

namespace tagsmith {
namespace {

constexpr std::size_t kMostBytes = std::size_t{2} << 20U;
constexpr std::size_t kMostBytesOfWord = 400;

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(kBlanks) + 1 - start);
}

bool IsWord(std::string_view text) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  return !text.empty() && text.size() <= kMostBytesOfWord &&
         std::ranges::none_of(text, isControl) && IsValidUtf8(text);
}

std::vector<std::string> WordsIn(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  std::vector<std::string> words;
  for (std::size_t start = 0; start < bytes.size();) {
    const std::size_t end = NextLineStart(bytes, start);
    const std::string_view word = Trim(bytes.substr(start, end - start));
    if (IsWord(word)) words.emplace_back(word);
    start = end;
  }
  return words;
}

Error TooLarge(const std::string& path) {
  return ErrorAbout(path, {ErrorCode::kOther, "The file is too large for a list of words"});
}

// The file's bytes; none where there is no file. Throws for one that cannot be read.
std::string ReadBytes(const std::string& path) {
  try {
    if (auto bytes = ReadRegularFile({path, {}}, kMostBytes)) return *std::move(bytes);
  } catch (const Error& error) {
    const ErrorCode code = error.Code();
    if (code == ErrorCode::kFileNotFound || code == ErrorCode::kPathNotFound) return {};
    throw ErrorAbout(path, error);
  }
  throw TooLarge(path);
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  try {
    WriteSafely({path, {}}, bytes, Durability::kWritten);
  } catch (const Error& error) {
    throw ErrorAbout(path, error);
  }
}

}  // namespace

std::vector<std::string> OwnWords::Read() const { return WordsIn(ReadBytes(path_)); }

void OwnWords::Keep(std::string_view word) {
  const std::string_view trimmed = Trim(word);
  if (!IsWord(trimmed)) throw Error(ErrorCode::kOther, "This cannot be kept as a word.");
  unsaved_.emplace_back(trimmed);
  Store();
}

void OwnWords::Store() {
  constexpr int kPatienceInMilliseconds = 1000;
  MakeFolder(std::filesystem::path(path_).parent_path());
  QLockFile lock(QFile::decodeName((path_ + ".lock").c_str()));
  // Without the lock the words still go in: another program may hang on to it.
  static_cast<void>(lock.tryLock(kPatienceInMilliseconds));

  std::string bytes = ReadBytes(path_);
  const std::size_t oldSize = bytes.size();
  std::vector<std::string> kept = WordsIn(bytes);
  for (const std::string& word : unsaved_) {
    if (std::ranges::count(kept, word) > 0) continue;
    if (!bytes.empty() && bytes.back() != '\n' && bytes.back() != '\r') bytes += '\n';
    bytes += word + '\n';
    kept.push_back(word);
  }
  if (bytes.size() >= kMostBytes) throw TooLarge(path_);
  if (bytes.size() != oldSize) WriteBytes(path_, bytes);
  unsaved_.clear();
}

}  // namespace tagsmith
