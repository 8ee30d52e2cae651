#include "support/MemoryFiles.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "services/CaseFold.h"
#include "services/Error.h"

namespace tagsmith {
namespace {

[[noreturn]] void Fail(ErrorCode code, const std::string& text, std::string_view path) {
  throw Error(code, text + ": " + std::string(path));
}

[[noreturn]] void Refuse(std::string_view path) {
  Fail(ErrorCode::kPermissionDenied, "Permission denied", path);
}

// Without the backslash behind it.
std::string Bare(std::string_view path) {
  while (path.ends_with('\\')) path.remove_suffix(1);
  return std::string(path);
}

std::string ParentOf(std::string_view path) { return Bare(path.substr(0, path.rfind('\\') + 1)); }

std::string NameOf(std::string_view path) { return std::string(path.substr(path.rfind('\\') + 1)); }

}  // namespace

// --- What the test lays down and looks up ---

void MemoryFiles::AddFile(std::string_view path, std::string_view bytes) {
  AddDirectory(ParentOf(path));
  tree_[std::string(path)] = {false, std::string(bytes), Fault::kNone};
}

void MemoryFiles::AddDirectory(std::string_view path) {
  for (std::string at = Bare(path); !at.empty(); at = ParentOf(at)) tree_[at].isDirectory = true;
}

void MemoryFiles::Remove(std::string_view path) {
  const std::string bare = Bare(path);
  std::erase_if(tree_, [&bare](const auto& entry) {
    return entry.first == bare || entry.first.starts_with(bare + "\\");
  });
}

void MemoryFiles::SetFault(std::string_view path, Fault fault) {
  const auto found = tree_.find(Bare(path));
  ASSERT_NE(found, tree_.end()) << "no such file or folder: " << path;
  found->second.fault = fault;
}

std::string MemoryFiles::Contents(std::string_view path) const {
  const auto found = tree_.find(std::string(path));
  if (found != tree_.end() && !found->second.isDirectory) return found->second.bytes;
  ADD_FAILURE() << "no such file: " << path;
  return {};
}

// --- FileSystem ---

MemoryFiles::Tree::const_iterator MemoryFiles::Find(std::string_view path) const {
  const std::string full = Full(path, CurrentDirectory());
  const auto exact = tree_.find(full);
  if (exact != tree_.end()) return exact;
  return std::find_if(tree_.begin(), tree_.end(),
                      [&full](const auto& entry) { return EqualWithoutCase(entry.first, full); });
}

std::string MemoryFiles::Full(std::string_view path, std::string_view base) const {
  std::string full(path);
  if (path.starts_with('\\')) {
    full = std::string(base.substr(0, 2)).append(path);
  } else if (path.find(':') != 1) {
    full = Bare(base).append("\\").append(path);
  }
  const auto drive = std::find_if(drives_.begin(), drives_.end(), [&full](const Drive& known) {
    return EqualWithoutCase(full.substr(0, 1), std::string(1, known.letter));
  });
  if (drive == drives_.end()) Fail(ErrorCode::kDeviceUnavailable, "Device unavailable", path);
  return Bare(Bare(drive->root) + full.substr(2));
}

const MemoryFiles::Tree::value_type& MemoryFiles::Directory(std::string_view path) const {
  const auto found = Find(path);
  const bool isThere = found != tree_.end() && found->second.isDirectory;
  if (isThere && found->second.fault != Fault::kUnreadable) return *found;
  Fail(ErrorCode::kPathNotFound, "Path not found", path);
}

std::string MemoryFiles::ResolveDirectory(std::string_view path, std::string_view base) const {
  const std::string& found = Directory(Full(path, base)).first;
  return found.size() == 2 ? found + "\\" : found;
}

std::vector<std::string> MemoryFiles::NamesIn(std::string_view directory, bool directories) const {
  const std::string above = Directory(directory).first;
  std::vector<std::string> names;
  for (const auto& [path, entry] : tree_) {
    const std::string name = NameOf(path);
    const bool isWanted = ParentOf(path) == above && entry.isDirectory == directories;
    if (isWanted && !name.starts_with('.')) names.push_back(name);
  }
  return names;
}

std::vector<DirectoryEntry> MemoryFiles::Entries(std::string_view directory) const {
  std::vector<DirectoryEntry> entries;
  for (std::string& name : NamesIn(directory, true)) entries.push_back({std::move(name), true});
  for (std::string& name : NamesIn(directory, false)) entries.push_back({std::move(name), false});
  return entries;
}

bool MemoryFiles::FileExists(std::string_view path) const noexcept {
  try {
    const auto found = Find(path);
    return !path.empty() && found != tree_.end() && !found->second.isDirectory;
  } catch (const Error&) {
    return false;
  }
}

std::optional<std::string> MemoryFiles::ReadFile(std::string_view path, std::size_t limit) const {
  const auto found = Find(path);
  if (found == tree_.end()) Fail(ErrorCode::kFileNotFound, "File not found", path);
  const Entry& entry = found->second;
  if (entry.isDirectory) Fail(ErrorCode::kNotARegularFile, "Not a file", path);
  if (entry.fault == Fault::kUnreadable) Refuse(path);
  if (entry.bytes.size() >= limit) return std::nullopt;
  return entry.bytes;
}

void MemoryFiles::WriteFile(std::string_view path, std::string_view bytes, Durability durability) {
  const auto found = Find(path);
  const std::string& place = found != tree_.end() ? found->first : Full(path, CurrentDirectory());
  const auto& folder = Directory(ParentOf(place)).second;
  const Fault fault = found != tree_.end() ? found->second.fault : folder.fault;
  if (fault == Fault::kNotWritable) Refuse(path);
  if (fault == Fault::kDiskFull) Fail(ErrorCode::kDiskFull, "Disk full", path);
  Entry& entry = tree_[place];
  if (entry.isDirectory) Fail(ErrorCode::kNotARegularFile, "Not a file", path);
  entry.bytes = bytes;
  lastDurability_ = durability;
}

std::vector<std::string> MemoryFiles::RenameEntries(std::string_view directory,
                                                    std::span<const NewName> names) {
  std::vector<std::string> left;
  for (const NewName& name : names) {
    const std::string from = Directory(directory).first + "\\" + name.from;
    const std::string to = Directory(directory).first + "\\" + name.to;
    if (from == to) continue;
    const auto found = tree_.find(from);
    if (found == tree_.end()) Fail(ErrorCode::kFileNotFound, "File not found", from);
    if (found->second.fault == Fault::kNotWritable) Refuse(from);
    if (tree_.contains(to)) {
      left.push_back(name.from);
      continue;
    }
    Tree renamed;
    for (const auto& [path, entry] : tree_) {
      const bool isBelow = path == from || path.starts_with(from + "\\");
      renamed[isBelow ? to + path.substr(from.size()) : path] = entry;
    }
    tree_ = std::move(renamed);
  }
  return left;
}

}  // namespace tagsmith
