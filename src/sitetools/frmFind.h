#pragma once

#include <cstddef>
#include <optional>

#include "core/Application.h"
#include "services/Buttons.h"
#include "services/ControlArray.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/TextBox.h"
#include "services/TextSearch.h"

namespace tagsmith {
class RichTextBox;
}

namespace tagsmith::sitetools {

struct ReplacedRange;

/// Find and Replace in the document, without regard to case; modeless, above all other windows. It
/// leaves the place of the last match in `Application::FoundPos`.
class frmFind : public Form {
 public:
  explicit frmFind(Application& application);

  ControlArray<Label> lblTitle{
      *this, "lblTitle", {"String To Search For", "String To Replace With"}};
  TextBox txtFind{*this, "txtFind"};
  TextBox txtReplace{*this, "txtReplace"};
  /// Find, Find Next, Replace, Replace All, Done.
  ControlArray<CommandButton> cmdCommand{*this, "cmdCommand", 5};

 private:
  void cmdCommand_Click(int index);
  void txtFind_KeyPress(int& keyAscii);
  void Find();
  void FindNext();
  void Replace();
  void ReplaceEach();
  /// Looks in the document from byte `from` on; `FoundPos` tells where it was found.
  std::optional<TextSearch::Match> Search(std::size_t from);
  void SelectMatch(const TextSearch::Match& match);
  void PutIntoDocument(const ReplacedRange& range);
  void SayNotFound();
  void Say(const std::string& prompt, const char* title);
  RichTextBox& Document() const;

  Application& application_;
};

}  // namespace tagsmith::sitetools
