#include "generators/SnippetCommands.h"

#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/Template.h"
#include "core/frmMain.h"
#include "generators/SnippetTexts.h"
#include "services/Buttons.h"

namespace tagsmith::generators {
namespace {

/// A button that puts a text on each side of the selection, or one in its place. The texts are as
/// in SnippetTexts.h.
struct Snippet {
  enum class Place : bool { kAround, kInstead };

  std::string_view control;
  Place place;
  std::string_view open;
  std::string_view close;
  std::string_view prompt;  ///< Asks for `{answer}`; empty where there is none.
};

constexpr Snippet Around(std::string_view control, std::string_view open, std::string_view close,
                         std::string_view prompt = {}) {
  return {control, Snippet::Place::kAround, open, close, prompt};
}

constexpr Snippet Instead(std::string_view control, std::string_view text,
                          std::string_view prompt = {}) {
  return {control, Snippet::Place::kInstead, text, {}, prompt};
}

constexpr Snippet kSnippets[] = {
    Instead("cmdJavaScript", kJavaScriptBlock),
    Instead("cmdJSDate", "window.document.write(Date())"),
    Instead("cmdJSTime", "window.document.write(Time())"),
    Around("cmdJSComments", "/* ", " */"),
    Instead("cmdJSStatusScroll", kStatusScroller, "Enter Scrolling Text:"),
    Instead("cmdJSAd", kAdRotation),

    Around("cmdCFOUTPUT", "<CFOUTPUT>", "</CFOUTPUT>"),
    Around("cmdCFIf", "<CFIF>", "</CFIF>"),
    Around("cmdNumSign", "#", "#"),
    Around("cmdCFQuery", "<CFQUERY>", "</CFQUERY>"),
    Around("cmdCFTable", "<CFTABLE>", "</CFTABLE>"),
    Around("cmdCFParam", "<CFPARAM Name=\"", "\">"),
    Around("cmdCFInsert", "<CFINSERT>", "</CFINSERT>"),
    Around("cmdCFUpdate", "<CFUPDATE>", "</CFUPDATE>"),
    Around("cmdAbort", "<CFABORT>", ""),
    Around("cmdCFReport", "<CFREPORT>", "</CFREPORT>"),
    Around("cmdCFExit", "<CFEXIT>", ""),
    Around("cmdCFCookie", "<CFCOOKIE>", "</CFCOOKIE>"),
    Around("cmdCFFile", "<CFFILE>", "</CFFILE>"),

    Instead("cmdVBScript", kVbScriptBlock),
    Instead("cmdVBDate", "Document.Write Date()"),
    Instead("cmdVBTime", "Document.Write Time()"),

    Around("cmdPHPOpening", "<? ", " ?>"),
    Around("cmdPHPPrint", "print(\"", "\");"),
    Around("cmdPHPComment", "/* ", " */"),
    Around("cmdPHPFunction", kPhpFunctionOpen, kPhpFunctionClose, "Function Name:"),
    Around("cmdPHPIF", kPhpIfOpen, kPhpIfClose, "Expression:"),
    Instead("cmdPHPLM", kPhpLastModified),

    Instead("cmdASPScript", kAspScriptBlock),
    Around("cmdASPInserts", "<% ", " %>"),
    Around("cmdASPInsertEquals", "<%= ", " %>"),
    Around("cmdInclude", "<!--#INCLUDE FILE = \"", "\"-->"),
};

std::string Filled(std::string_view text, std::string_view answer) {
  return FillTemplate(text, {{"answer", answer}, {"blank", " "}});
}

void Insert(Application& application, const Snippet& snippet) {
  frmMain& form = application.MainForm();
  std::string answer;
  if (!snippet.prompt.empty()) {
    answer = application.InputBox(form, snippet.prompt, application.Title());
  }
  const std::string open = Filled(snippet.open, answer);
  if (snippet.place == Snippet::Place::kInstead) {
    form.InsertText(open);
  } else {
    form.InsertAround(open, Filled(snippet.close, answer));
  }
}

}  // namespace

void BindSnippetCommands(Application& application) {
  for (const Snippet& snippet : kSnippets) {
    application.MainForm().Get<CommandButton>(snippet.control).onClick = [&application, &snippet] {
      Insert(application, snippet);
    };
  }
}

}  // namespace tagsmith::generators
