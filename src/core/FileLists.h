#pragma once

#include <functional>

#include "services/FileBoxes.h"

namespace tagsmith {

class Application;

/// The lists with which a form of its own chooses a directory, beginning where the main form's
/// lists stand.
struct FileLists {
  Form& form;
  DriveListBox& drive;
  DirListBox& directory;
  FileListBox* files = nullptr;  ///< Null for a form that shows no files.
};

/// Chains the lists: a drive opens in the directory list, a directory shows its files. A drive that
/// cannot be opened is told to the user, and the first drive opens instead. `onDirectory` is called
/// behind each change of the directory; it may be empty.
void ChainFileLists(Application& application, const FileLists& lists,
                    std::function<void()> onDirectory = {});

/// Opens what the main form's lists have open.
void OpenAtMainForm(Application& application, const FileLists& lists);

}  // namespace tagsmith
