#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "services/rtf/CharacterStyles.h"
#include "services/rtf/Document.h"
#include "services/rtf/Notes.h"
#include "services/rtf/Pictures.h"
#include "services/rtf/Targets.h"

namespace tagsmith::rtf {

/// Writes what stands in paragraphs. The objects it is made with outlive it.
class InlineWriter {
 public:
  InlineWriter(CharacterStyles& styles, Targets& targets, const Pictures& pictures, Notes& notes)
      : styles_(styles), targets_(targets), pictures_(pictures), notes_(notes) {}

  /// Appends the markup of the paragraph's runs to `out`; all elements are closed. A paragraph that
  /// shows nothing gets a no-break space, so that its line stays.
  void AppendRuns(std::string& out, const Paragraph& paragraph);

 private:
  // The elements that can be open, the outer ones first: 0 is a closed one; links and spans have
  // the number of their start tag and one more.
  enum Level { kLinkLevel, kSpanLevel, kBold, kItalic, kUnderline, kStrike, kRaise, kLevelCount };
  using Levels = std::array<std::uint32_t, kLevelCount>;

  void AppendRun(std::string& out, const Run& run, std::string_view text);
  void AppendTextRun(std::string& out, const Run& run, std::string_view text);
  void SwitchTo(std::string& out, const CharacterFormat& format);
  void Open(std::string& out, const Levels& wanted);
  void CloseAll(std::string& out);
  Levels LevelsOf(const CharacterFormat& format);

  CharacterStyles& styles_;
  Targets& targets_;
  const Pictures& pictures_;
  Notes& notes_;

  Levels open_{};
  std::optional<CharacterFormat> format_;  ///< What `open_` has been made for.
  bool afterBlank_ = true;
  bool isLineEmpty_ = true;  ///< Nothing is to be seen since the last line break.
};

}  // namespace tagsmith::rtf
