#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "services/FileSystem.h"

namespace tagsmith {

/// A tree of files and folders in memory, by system paths, with one drive "c:" from the start. It
/// tells case apart in its names and finds them without regard to case, as the contract says.
class MemoryFiles : public FileSystem {
 public:
  enum class Fault : std::uint8_t { kNone, kUnreadable, kNotWritable, kDiskFull };

  MemoryFiles() { AddDirectory("c:\\"); }

  // --- What the test lays down and looks up ---

  /// Folders above are made as needed.
  void AddFile(std::string_view path, std::string_view bytes);
  void AddDirectory(std::string_view path);
  void AddDrive(char letter, std::string_view label, std::string_view root) {
    drives_.push_back({letter, std::string(label), std::string(root)});
  }
  /// Removes the file or the folder with all it holds.
  void Remove(std::string_view path);
  /// What goes wrong at this path from now on; for a folder, with new files in it.
  void SetFault(std::string_view path, Fault fault);
  /// The file's bytes; fails the test if it is not there under exactly this name.
  std::string Contents(std::string_view path) const;
  /// How far the last written file was to get.
  Durability LastDurability() const { return lastDurability_; }

  // --- FileSystem ---

  std::vector<Drive> Drives() const override { return drives_; }
  std::string CurrentDirectory() const override { return "c:\\"; }
  std::string ResolveDirectory(std::string_view path, std::string_view base) const override;
  std::vector<std::string> DirectoryNames(std::string_view directory) const override {
    return NamesIn(directory, true);
  }
  std::vector<std::string> FileNames(std::string_view directory) const override {
    return NamesIn(directory, false);
  }
  std::vector<DirectoryEntry> Entries(std::string_view directory) const override;
  bool FileExists(std::string_view path) const noexcept override;
  std::optional<std::string> ReadFile(std::string_view path, std::size_t limit) const override;
  void WriteFile(std::string_view path, std::string_view bytes, Durability durability) override;
  void CopyFile(std::string_view from, std::string_view to) override {
    WriteFile(to, *ReadFile(from, std::string::npos), Durability::kWritten);
  }
  std::vector<std::string> RenameEntries(std::string_view directory,
                                         std::span<const NewName> names) override;

 private:
  struct Entry {
    bool isDirectory = false;
    std::string bytes;
    Fault fault = Fault::kNone;
  };
  using Tree = std::map<std::string, Entry>;  ///< By full path; a drive's root without a backslash.

  Tree::const_iterator Find(std::string_view path) const;
  const Tree::value_type& Directory(std::string_view path) const;
  std::vector<std::string> NamesIn(std::string_view directory, bool directories) const;
  std::string Full(std::string_view path, std::string_view base) const;

  Tree tree_;
  std::vector<Drive> drives_ = {{'c', "root", "c:\\"}};
  Durability lastDurability_ = Durability::kWritten;
};

}  // namespace tagsmith
