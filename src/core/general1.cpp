#include "core/general1.h"

#include <algorithm>
#include <charconv>

#include "core/Application.h"
#include "services/FileSystem.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr Colour kColourCount = 0x1000000;

// How many bytes the first two characters take.
std::size_t DriveLength(std::string_view path) {
  std::size_t length = 0;
  for (int i = 0; i < 2 && length < path.size(); ++i) {
    length += std::max<std::size_t>(DecodeUtf8(path, length).length, 1);
  }
  return length;
}

std::string DirectoryOf(std::string_view path) {
  const std::size_t start = DriveLength(path);
  const std::size_t slash = path.rfind('\\');
  if (slash == std::string_view::npos || slash < start) return {};
  return std::string(path.substr(start, slash + 1 - start));
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::string AddBackslash(std::string_view path) {
  std::string result(Trim(path));
  if (!result.ends_with('\\')) result += '\\';
  return result;
}

bool FileExists(const Application& application, std::string_view path) {
  return application.platform.files.FileExists(path);
}

std::string GetPathOnly(std::string_view path) {
  return std::string(path.substr(0, path.rfind('\\') + 1));
}

std::string GetFileNameOnly(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string_view::npos ? std::string() : std::string(path.substr(slash + 1));
}

std::string GetNameBeforeDot(std::string_view name) {
  const std::size_t dot = name.find('.');
  return dot == std::string_view::npos ? std::string() : std::string(name.substr(0, dot));
}

std::string ParsePath(std::string_view path, int kind) {
  switch (kind) {
    case kPathDrive:
      return std::string(path.substr(0, DriveLength(path)));
    case kPathDirectory:
      return DirectoryOf(path);
    case kPathFileName:
      return GetFileNameOnly(path);
    case kPathBaseName:
      return GetNameBeforeDot(GetFileNameOnly(path));
    default:
      return {};
  }
}

int GetColorByte(Colour colour, int index) {
  if (index < 1 || index > 3 || colour < 0 || colour >= kColourCount) return -1;
  return (colour >> (8 * (index - 1))) & 0xFF;
}

double Val(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  if (text.starts_with('+')) text.remove_prefix(1);
  // Digits only: the words for infinity and the like are no numbers here.
  const std::size_t end = std::min(text.find_first_not_of("-.0123456789"), text.size());
  double number = 0;
  std::from_chars(text.data(), text.data() + end, number, std::chars_format::fixed);
  return number;
}

}  // namespace tagsmith
