#include "toolbars/FormattingCommands.h"

#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Buttons.h"
#include "services/Lists.h"

namespace tagsmith::toolbars {
namespace {

/// A button that puts a fixed text on each side of the selection.
struct FormattingCommand {
  std::string_view control;
  std::string_view open;
  std::string_view close{};
  /// What its tag is called when tags get an ID attribute; empty where they never do.
  std::string_view id{};
};

constexpr std::string_view kHeadingId = "HeadingID";

constexpr FormattingCommand kCommands[] = {
    {"cmdBold", "<B>", "</B>", "BoldID"},
    {"cmdItallic", "<I>", "</I>", "ItallicsID"},
    {"cmdUnderline", "<U>", "</U>"},
    {"cmdParagraph", "<P>", "</P>", "ParagraphID"},
    {"cmdSub", "<SUB>", "</SUB>", "SubID"},
    {"cmdSup", "<SUP>", "</SUP>", "SupID"},
    {"cmdTitle", "<TITLE>", "</TITLE>"},
    {"cmdBR", "<BR>"},
    {"cmdHRTag", "<HR>"},
    {"cmdCenter", "<CENTER>", "</CENTER>"},
    {"cmdLeft", "Align=Left"},
    {"cmdRight", "Align=Right"},
    {"cmdPRE", "<PRE>", "</PRE>"},
    {"cmdEM", "<EM>", "</EM>"},
    {"cmdStrong", "<STRONG>", "</STRONG>"},
    {"cmdTextArea", "<TEXTAREA>", "</TEXTAREA>"},
    {"cmdFrameset", "<FRAMESET>", "</FRAMESET>"},
    {"cmdFrame", "<FRAME>", "</FRAME>"},
    {"cmdNoFrame", "<NOFRAMES>", "</NOFRAMES>"},
    {"cmdStyle", "<STYLE>", "</STYLE>"},
    {"cmdTableTag", "<TABLE>", "</TABLE>"},
    {"cmdCaption", "<CAPTION>", "</CAPTION>"},
    {"cmdTR", "<TR>", "</TR>"},
    {"cmdTH", "<TH>", "</TH>"},
    {"cmdTD", "<TD>", "</TD>"},
    {"cmdLI", "<LI>", "</LI>"},
    {"cmdDT", "<DT>"},
    {"cmdDD", "<DD>"},
};

/// The opening tag `tag` ("<B>") with an ID attribute.
std::string WithId(std::string_view tag, std::string_view id) {
  tag.remove_suffix(1);
  return std::string(tag) + " Id=\"" + std::string(id) + "\">";
}

void InsertTag(Application& application, std::string_view open, std::string_view close,
               std::string_view id) {
  const bool withId = application.gIncludeIdAttribute && !id.empty();
  application.MainForm().InsertAround(withId ? WithId(open, id) : std::string(open), close);
}

void cboHeadings_Click(Application& application) {
  const std::string level(Trim(application.MainForm().Get<ComboBox>("cboHeadings").Text()));
  InsertTag(application, "<" + level + ">", "</" + level + ">", kHeadingId);
}

}  // namespace

void BindFormattingCommands(Application& application) {
  frmMain& form = application.MainForm();
  for (const FormattingCommand& command : kCommands) {
    form.Get<CommandButton>(command.control).onClick = [&application, &command] {
      InsertTag(application, command.open, command.close, command.id);
    };
  }
  form.Get<ComboBox>("cboHeadings").onClick = [&application] { cboHeadings_Click(application); };
}

}  // namespace tagsmith::toolbars
