#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Control.h"
#include "services/FileSystem.h"

namespace tagsmith {

/// The drives of the machine. Only the first two characters of a drive's text are meaning.
class DriveListBox : public Control {
 public:
  DriveListBox(Form& form, std::string name);

  /// The open drive, with its label: "c: [root]".
  const std::string& Drive() const { return List(listIndex_); }
  /// Opens a drive, named by its first two characters in either case, and raises `onChange`. Throws
  /// kDeviceUnavailable for a drive that is not there.
  void SetDrive(std::string_view drive);

  int ListCount() const { return static_cast<int>(list_.size()); }
  /// The text of a drive; empty outside the list.
  const std::string& List(int index) const;
  int ListIndex() const { return listIndex_; }
  /// Reads the drives anew. The open one stays open, also when it has gone.
  void Refresh();

  Event<> onChange;

  /// The user chooses an entry.
  void Select(int index);

 private:
  int IndexOf(std::string_view drive) const;

  std::vector<std::string> list_;
  int listIndex_ = -1;
};

/// One directory with those above and below it. Entries count from 0 for the subdirectories, sorted
/// without regard to case; -1 is the open directory itself, -2 and on are its ancestors, nearest
/// first.
class DirListBox : public Control {
 public:
  DirListBox(Form& form, std::string name);

  /// The full path of the open directory, without a backslash behind it but for a drive's root.
  const std::string& Path() const { return path_; }
  /// Opens a directory and raises `onChange`: a full path, one without a drive (on the drive of the
  /// open one), a relative one, or a drive as `DriveListBox::Drive` gives it. Throws
  /// kPathNotFound or kDeviceUnavailable and leaves all as it was.
  void SetPath(std::string_view path);

  /// How many subdirectories the open directory has.
  int ListCount() const { return static_cast<int>(names_.size()); }
  /// The full path of an entry, from `-1 - AncestorCount()` to `ListCount() - 1`; else empty.
  std::string List(int index) const;
  int AncestorCount() const;
  /// The highlighted entry.
  int ListIndex() const { return listIndex_; }
  /// Highlights an entry and raises `onClick` if it was another; an entry that is not there is
  /// passed over.
  void SetListIndex(int index);
  /// Reads the subdirectories anew. Where the open directory has gone, its nearest ancestor that is
  /// there is opened.
  void Refresh();

  Event<> onChange;
  Event<> onClick;

  // --- The user's actions ---

  /// A click on an entry.
  void Select(int index);
  /// Enter or a double click on an entry: opens it. An entry that cannot be opened stays closed.
  void Open(int index);

 private:
  void Show(std::string path);
  bool HasEntry(int index) const;

  std::string path_;
  std::vector<std::string> names_;
  int listIndex_ = -1;
};

/// The files of a directory, sorted without regard to case; it reads the folder itself.
class FileListBox : public Control {
 public:
  FileListBox(Form& form, std::string name, bool multiSelect = false);

  const std::string& Path() const { return path_; }
  /// Shows the files of another directory; nothing is selected then. Throws as
  /// `DirListBox::SetPath`.
  void SetPath(std::string_view path);
  /// Name patterns with `*` and `?`, joined by semicolons, compared without regard to case.
  const std::string& Pattern() const { return pattern_; }
  void SetPattern(std::string_view pattern);

  int ListCount() const { return static_cast<int>(names_.size()); }
  /// A file's name, without its directory; empty outside the list.
  const std::string& List(int index) const;
  /// The entry with the focus, -1 for none.
  int ListIndex() const { return listIndex_; }
  /// Raises `onClick` if it changes.
  void SetListIndex(int index);
  bool MultiSelect() const { return multiSelect_; }
  bool Selected(int index) const;
  void SetSelected(int index, bool selected);
  /// Reads the folder anew. The selected entries stay selected where they are still there.
  void Refresh();

  /// 1 begins a manual drag of the list: what is dropped is the list itself. 2 ends it.
  void Drag(int action);
  bool IsDragging() const { return dragging_; }

  Event<> onClick;
  Event<> onDblClick;
  Event<int> onMouseDown;  ///< The mouse button. The entry under the mouse is selected already.
  Event<int> onMouseUp;

  // --- The user's actions ---

  /// The user selects an entry alone.
  void Select(int index);
  /// The view reports the whole selection of a list of several.
  void UserSelection(const std::vector<bool>& selected, int listIndex);
  /// A double click, or Enter, on an entry.
  void DoubleClick(int index);
  void MouseDown(int button);
  void MouseUp(int button);

 private:
  void ReadNames();

  std::string path_;
  std::string pattern_ = "*.*";
  std::vector<std::string> names_;
  std::vector<bool> selected_;
  int listIndex_ = -1;
  bool multiSelect_;
  bool dragging_ = false;
};

/// Whether `name` fits one of the patterns in `patterns`, which are joined by semicolons. "*.*"
/// fits every name, also one without a dot.
bool MatchesPatterns(std::string_view name, std::string_view patterns);

}  // namespace tagsmith
