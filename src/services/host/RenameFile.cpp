#include "services/host/RenameFile.h"

#include <fcntl.h>

#include <cerrno>
#include <cstdio>

#include "services/host/DirectoryReader.h"
#include "services/host/FileStatus.h"
#include "services/host/HostError.h"
#include "services/host/PathLookup.h"

namespace tagsmith {
namespace {

bool IsListed(const FolderAndName& entry) {
  DirectoryReader reader(entry.folder);
  while (const dirent* candidate = reader.Next()) {
    if (entry.name == candidate->d_name) return true;
  }
  return false;
}

// Two names of one file (hard links) are two entries: then the folder lists both. That is looked up
// only where there can be two.
bool IsSameEntry(const std::string& from, const std::string& to) {
  if (from == to) return true;
  const auto one = FindEntry(from);
  const auto other = FindEntry(to);
  return one && other && one->st_dev == other->st_dev && one->st_ino == other->st_ino &&
         (S_ISDIR(one->st_mode) || one->st_nlink == 1 || !IsListed(SplitPath(to)));
}

// Returns 0 or the error's number.
int Rename(const std::string& from, const std::string& to, unsigned int flags) {
  return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0 ? 0 : errno;
}

}  // namespace

bool RenameFile(const std::string& from, const std::string& to) {
  const bool replaces = IsSameEntry(from, to);
  int error = Rename(from, to, replaces ? 0 : RENAME_NOREPLACE);
  // Some file systems cannot refuse by themselves.
  if (error == EINVAL && !replaces) error = FindEntry(to) ? EEXIST : Rename(from, to, 0);
  if (error == EEXIST) return false;
  if (error != 0) throw FileError(error, FindEntry(from) ? to : from);
  return true;
}

bool RenameInFolder(const FileDescriptor& folder, const std::string& folderPath,
                    const std::string& from, const std::string& to) {
  const int number = folder.Number();
  if (::renameat2(number, from.c_str(), number, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  // The rare case takes a closer look, by the whole paths.
  return RenameFile(folderPath + '/' + from, folderPath + '/' + to);
}

}  // namespace tagsmith
