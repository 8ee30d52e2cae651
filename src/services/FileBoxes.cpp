#include "services/FileBoxes.h"

#include <algorithm>

#include "services/CaseFold.h"
#include "services/Error.h"
#include "services/Form.h"
#include "services/Platform.h"
#include "services/Utf8.h"

namespace tagsmith {
namespace {

constexpr std::size_t kDriveLength = 2;  // "c:"
const std::string kNoEntry;

FileSystem& FilesOf(const Control& control) { return control.Owner().GetPlatform().files; }

// A path may be given as the text of a drive list, "d: [label]": only the drive counts then.
std::string_view WithoutLabel(std::string_view path) {
  const bool isDriveText = path.size() > kDriveLength && path[1] == ':' && path[2] == ' ';
  return isDriveText ? path.substr(0, kDriveLength) : path;
}

std::string_view ParentOf(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  if (slash == std::string_view::npos || slash + 1 == path.size()) return {};
  const bool inRoot = slash == kDriveLength;
  return path.substr(0, inRoot ? slash + 1 : slash);
}

std::string JoinPath(std::string_view directory, std::string_view name) {
  std::string path(directory);
  if (path.empty() || path.back() != '\\') path += '\\';
  return path.append(name);
}

bool Matches(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      const std::size_t length = pattern[p] == '?' ? DecodeUtf8(name, n).length : 1;
      n += std::max<std::size_t>(length, 1);
      ++p;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

}  // namespace

bool MatchesPatterns(std::string_view name, std::string_view patterns) {
  const std::string folded = FoldCase(name);
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(';'), patterns.size());
    const std::string pattern = FoldCase(patterns.substr(0, end));
    if (pattern == "*.*" || Matches(folded, pattern)) return true;
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
  }
  return false;
}

// --- DriveListBox ---

DriveListBox::DriveListBox(Form& form, std::string name)
    : Control(form, ControlKind::kDriveListBox, std::move(name)) {
  Refresh();
  listIndex_ = 0;
}

const std::string& DriveListBox::List(int index) const {
  return index >= 0 && index < ListCount() ? list_[static_cast<std::size_t>(index)] : kNoEntry;
}

int DriveListBox::IndexOf(std::string_view drive) const {
  const std::string_view letter = drive.substr(0, kDriveLength);
  const auto found = std::find_if(list_.begin(), list_.end(), [&](const std::string& text) {
    return EqualWithoutCase(std::string_view(text).substr(0, kDriveLength), letter);
  });
  return found == list_.end() ? -1 : static_cast<int>(found - list_.begin());
}

void DriveListBox::SetDrive(std::string_view drive) {
  if (IndexOf(drive) < 0) Refresh();
  const int index = IndexOf(drive);
  if (index < 0) throw Error(ErrorCode::kDeviceUnavailable, "Device unavailable");
  listIndex_ = index;
  Tell(Property::kSelection);
  Raise(onChange);
}

void DriveListBox::Refresh() {
  const std::string open = Drive();
  list_.clear();
  for (const tagsmith::Drive& drive : FilesOf(*this).Drives()) {
    list_.push_back(std::string(1, drive.letter) + ": [" + drive.label + "]");
  }
  if (!open.empty()) {
    if (IndexOf(open) < 0) list_.push_back(open);
    listIndex_ = IndexOf(open);
  }
  Tell(Property::kItems);
}

void DriveListBox::Select(int index) {
  if (!TakesInput() || index < 0 || index >= ListCount()) return;
  listIndex_ = index;
  Tell(Property::kSelection);
  Raise(onChange);
}

// --- DirListBox ---

DirListBox::DirListBox(Form& form, std::string name)
    : Control(form, ControlKind::kDirListBox, std::move(name)) {
  path_ = FilesOf(*this).CurrentDirectory();
  try {
    Show(path_);
  } catch (const Error&) {  // A folder that cannot be read shows as empty.
  }
}

void DirListBox::Show(std::string path) {
  std::vector<std::string> names = FilesOf(*this).DirectoryNames(path);
  SortWithoutCase(names);
  path_ = std::move(path);
  names_ = std::move(names);
  listIndex_ = -1;
  Tell(Property::kItems);
}

void DirListBox::SetPath(std::string_view path) {
  Show(FilesOf(*this).ResolveDirectory(WithoutLabel(path), path_));
  Raise(onChange);
}

int DirListBox::AncestorCount() const {
  int count = 0;
  for (std::string_view above = ParentOf(path_); !above.empty(); above = ParentOf(above)) ++count;
  return count;
}

bool DirListBox::HasEntry(int index) const {
  return index < ListCount() && index >= -1 - AncestorCount();
}

std::string DirListBox::List(int index) const {
  if (!HasEntry(index)) return {};
  if (index >= 0) return JoinPath(path_, names_[static_cast<std::size_t>(index)]);
  std::string_view path = path_;
  for (int above = -1; above > index; --above) path = ParentOf(path);
  return std::string(path);
}

void DirListBox::SetListIndex(int index) {
  if (!HasEntry(index) || index == listIndex_) return;
  listIndex_ = index;
  Tell(Property::kSelection);
  Raise(onClick);
}

void DirListBox::Refresh() {
  const std::string before = path_;
  std::string path = path_;
  for (bool found = false; !found;) {
    try {
      Show(FilesOf(*this).ResolveDirectory(path, path_));
      found = true;
    } catch (const Error&) {
      const std::string above(ParentOf(path));
      if (above.empty()) return;
      path = above;
    }
  }
  if (path_ != before) Raise(onChange);
}

void DirListBox::Select(int index) {
  if (!TakesInput() || !HasEntry(index)) return;
  listIndex_ = index;
  Tell(Property::kSelection);
  Raise(onClick);
}

void DirListBox::Open(int index) {
  if (!TakesInput() || !HasEntry(index)) return;
  try {
    SetPath(List(index));
  } catch (const Error&) {
    Select(index);
  }
}

// --- FileListBox ---

FileListBox::FileListBox(Form& form, std::string name, bool multiSelect)
    : Control(form, ControlKind::kFileListBox, std::move(name)), multiSelect_(multiSelect) {
  path_ = FilesOf(*this).CurrentDirectory();
  Refresh();
}

void FileListBox::ReadNames() {
  std::vector<std::string> names = FilesOf(*this).FileNames(path_);
  if (pattern_ != "*.*") {
    std::erase_if(names, [this](const auto& name) { return !MatchesPatterns(name, pattern_); });
  }
  SortWithoutCase(names);
  names_ = std::move(names);
  selected_.assign(names_.size(), false);
  listIndex_ = -1;
}

void FileListBox::SetPath(std::string_view path) {
  path_ = FilesOf(*this).ResolveDirectory(WithoutLabel(path), path_);
  ReadNames();
  Tell(Property::kItems);
}

void FileListBox::SetPattern(std::string_view pattern) {
  pattern_ = pattern;
  Refresh();
}

const std::string& FileListBox::List(int index) const {
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : kNoEntry;
}

bool FileListBox::Selected(int index) const {
  return index >= 0 && index < ListCount() && selected_[static_cast<std::size_t>(index)];
}

void FileListBox::SetSelected(int index, bool selected) {
  if (index < 0 || index >= ListCount()) return;
  selected_[static_cast<std::size_t>(index)] = selected;
  Tell(Property::kSelection);
}

void FileListBox::SetListIndex(int index) {
  if (index < 0 || index >= ListCount()) index = -1;
  if (index == listIndex_) return;
  listIndex_ = index;
  if (!multiSelect_) {
    selected_.assign(names_.size(), false);
    if (index >= 0) selected_[static_cast<std::size_t>(index)] = true;
  }
  Tell(Property::kSelection);
  Raise(onClick);
}

void FileListBox::Refresh() {
  std::vector<std::string> wasSelected;
  for (int i = 0; i < ListCount(); ++i) {
    if (Selected(i)) wasSelected.push_back(List(i));
  }
  const std::string focused = List(listIndex_);
  try {
    ReadNames();
  } catch (const Error&) {
    names_.clear();
    selected_.clear();
    listIndex_ = -1;
  }
  const auto place = [this](const std::string& name) {
    const auto at = std::lower_bound(names_.begin(), names_.end(), name, LessWithoutCase);
    return at != names_.end() && *at == name ? static_cast<int>(at - names_.begin()) : -1;
  };
  for (const std::string& name : wasSelected) {
    if (const int at = place(name); at >= 0) selected_[static_cast<std::size_t>(at)] = true;
  }
  if (!focused.empty()) listIndex_ = place(focused);
  Tell(Property::kItems);
}

void FileListBox::Drag(int action) {
  constexpr int kBegin = 1;
  dragging_ = action == kBegin;
  if (View() != nullptr) View()->Drag(dragging_);
}

void FileListBox::Select(int index) {
  if (!TakesInput() || index < 0 || index >= ListCount()) return;
  std::vector<bool> alone(names_.size(), false);
  alone[static_cast<std::size_t>(index)] = true;
  UserSelection(alone, index);
  Tell(Property::kSelection);
}

void FileListBox::UserSelection(const std::vector<bool>& selected, int listIndex) {
  if (selected.size() != names_.size()) return;
  selected_ = selected;
  listIndex_ = listIndex;
  Raise(onClick);
}

void FileListBox::DoubleClick(int index) {
  if (!TakesInput() || index < 0 || index >= ListCount()) return;
  if (index != listIndex_) Select(index);
  Raise(onDblClick);
}

void FileListBox::MouseDown(int button) {
  if (TakesInput()) Raise(onMouseDown, button);
}

void FileListBox::MouseUp(int button) {
  if (TakesInput()) Raise(onMouseUp, button);
}

}  // namespace tagsmith
