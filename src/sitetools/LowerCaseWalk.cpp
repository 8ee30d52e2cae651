#include "sitetools/LowerCaseWalk.h"

#include <algorithm>
#include <span>
#include <utility>

#include "services/CaseFold.h"
#include "services/FileSystem.h"
#include "services/LowerCase.h"

namespace tagsmith::sitetools {
namespace {

std::string PathIn(std::string_view directory, std::string_view name) {
  std::string path(directory);
  if (!path.ends_with('\\')) path += '\\';
  return path.append(name);
}

class Walk {
 public:
  Walk(FileSystem& files, const std::function<bool(std::string_view)>& onEnter)
      : files_(files), onEnter_(onEnter) {}

  NamesLeft Run(std::string_view directory) {
    Enter(std::string(directory));
    while (!stopped_ && !open_.empty()) {
      open_.back().subdirectories.empty() ? Leave() : EnterNext();
    }
    return std::move(left_);
  }

 private:
  // A directory whose subdirectories are being walked: a stack of its own, since a tree can be
  // deeper than calls can.
  struct OpenDirectory {
    std::string path;
    std::vector<DirectoryEntry> subdirectories;  ///< Those still to do; the next one stands last.
  };

  void Enter(std::string path) {
    stopped_ = !onEnter_(path);
    if (stopped_) return;
    std::vector<DirectoryEntry> entries = files_.Entries(path);
    const bool isLeaf = std::ranges::none_of(entries, &DirectoryEntry::isDirectory);
    if (isLeaf) {
      RenameFiles(path, entries);
      return;
    }
    std::erase_if(entries, [](const DirectoryEntry& entry) { return !entry.isDirectory; });
    std::ranges::sort(entries, LessWithoutCase, &DirectoryEntry::name);
    open_.push_back({std::move(path), std::move(entries)});
  }

  void EnterNext() {
    OpenDirectory& open = open_.back();
    const DirectoryEntry entry = std::move(open.subdirectories.back());
    open.subdirectories.pop_back();
    NewName name{entry.name, LowerCase(entry.name)};
    const bool isFree = name.from == name.to || Rename(open.path, {&name, 1});
    if (!entry.isLink) Enter(PathIn(open.path, isFree ? name.to : name.from));
  }

  // While the subdirectories were walked, files may have come and gone.
  void Leave() {
    const OpenDirectory done = std::move(open_.back());
    open_.pop_back();
    std::vector<DirectoryEntry> entries = files_.Entries(done.path);
    std::erase_if(entries, [](const DirectoryEntry& entry) { return entry.isDirectory; });
    RenameFiles(done.path, entries);
  }

  void RenameFiles(std::string_view directory, std::span<DirectoryEntry> files) {
    std::vector<std::string> changing;
    for (DirectoryEntry& file : files) {
      if (LowerCase(file.name) != file.name) changing.push_back(std::move(file.name));
    }
    if (changing.empty()) return;
    SortWithoutCase(changing);
    std::vector<NewName> names;
    names.reserve(changing.size());
    for (const std::string& name : changing) names.push_back({name, LowerCase(name)});
    Rename(directory, names);
  }

  // Whether all got their names.
  bool Rename(std::string_view directory, std::span<const NewName> names) {
    const std::vector<std::string> left = files_.RenameEntries(directory, names);
    for (const std::string& name : left) {
      if (left_.paths.size() < NamesLeft::kMostPaths)
        left_.paths.push_back(PathIn(directory, name));
    }
    left_.count += left.size();
    return left.empty();
  }

  FileSystem& files_;
  const std::function<bool(std::string_view)>& onEnter_;
  std::vector<OpenDirectory> open_;
  NamesLeft left_;
  bool stopped_ = false;
};

}  // namespace

NamesLeft LowerCaseBelow(FileSystem& files, std::string_view directory,
                         const std::function<bool(std::string_view path)>& onEnter) {
  return Walk(files, onEnter).Run(directory);
}

}  // namespace tagsmith::sitetools
