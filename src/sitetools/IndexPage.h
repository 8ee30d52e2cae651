#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tagsmith {
class FileSystem;
}

namespace tagsmith::sitetools {

enum class IndexFormat : std::uint8_t {
  kEMenu,  ///< A menu that opens and closes, on the script "list.js" beside the page.
  kIList,  ///< Indented lines.
  kUList,  ///< A list with bullets.
  kOList,  ///< A numbered list of lists with bullets.
};

/// A page of links to the files in the subdirectories of a directory, built in one piece from top
/// to bottom. Names go into it as they are. The links are relative to that directory.
class IndexPage {
 public:
  virtual ~IndexPage() = default;

  /// Begins the part of the subdirectory `name`. `hasFiles` tells whether files will be added.
  virtual void BeginDirectory(std::string_view name, bool hasFiles) = 0;
  /// Adds the link to a file of the subdirectory that was begun last.
  virtual void AddFile(std::string_view name) = 0;
  /// Ends the part that was begun last.
  virtual void EndDirectory() = 0;

  /// The whole page; nothing can be added behind it. It is UTF-8 and begins with a byte order mark
  /// if it holds more than ASCII, since it names no encoding. Its lines are separated by CR LF,
  /// none behind the last.
  virtual std::string Finish() = 0;
};

/// An empty page. With `underline` its links are underlined only under the mouse.
std::unique_ptr<IndexPage> MakeIndexPage(IndexFormat format, bool underline);

/// Goes along while a directory is read for its page. What is not overridden takes no notice.
class IndexWatcher {
 public:
  virtual ~IndexWatcher() = default;

  /// There are `count` subdirectories.
  virtual void OnStart(std::size_t /*count*/) {}
  /// The subdirectory with that number, from 0, is next; `path` is its full path.
  virtual void OnDirectory(std::size_t /*index*/, std::string_view /*path*/) {}
  /// A file was added. False gives the page up.
  virtual bool OnFile() { return true; }
};

/// The page for `directory` (a full system path), as `IndexPage::Finish` gives it: its
/// subdirectories and the files in them, each sorted without regard to case. Goes one level down;
/// the directory's own files are not in it. Nothing if the watcher gave it up. Throws `Error` for a
/// directory that cannot be read.
std::optional<std::string> BuildIndexPage(const FileSystem& files, std::string_view directory,
                                          IndexFormat format, bool underline,
                                          IndexWatcher& watcher);

}  // namespace tagsmith::sitetools
