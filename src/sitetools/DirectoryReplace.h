#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "services/TextSearch.h"

namespace tagsmith {
class FileSystem;
}

namespace tagsmith::sitetools {

/// How far a file got.
enum class FileOutcome : std::uint8_t {
  kWritten,
  kTooLarge,    ///< It has `kFileSizeLimit` bytes or more. Neither replaced nor written.
  kUnreadable,  ///< Neither replaced nor written.
  kNotWritten,  ///< Read and replaced; the file is as a failed `FileSystem::WriteFile` leaves it.
};

/// In bytes: a file of this size is too large.
inline constexpr std::size_t kFileSizeLimit = 1'000'000;

/// Replaces in one file (a system path), as `ReplaceInFile` does, and writes it back in its
/// encoding with one more CR LF behind it, also where nothing matched. The file is wholly old or
/// wholly new at every moment, but for one that has to be written in place. `onLoaded` is called
/// between reading and replacing. `text` is the file's text then (UTF-8) and the replaced one
/// afterwards, without the CR LF; a file that was not read leaves it alone. Throws nothing that a
/// file can bring about.
FileOutcome ReplaceInOneFile(FileSystem& files, std::string_view path, const TextSearch& find,
                             std::string_view replacement, std::string& text,
                             const std::function<void()>& onLoaded = {});

}  // namespace tagsmith::sitetools
