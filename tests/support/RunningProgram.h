#pragma once

#include <string_view>

#include "core/Application.h"
#include "core/Startup.h"
#include "core/frmMain.h"
#include "support/MarkedText.h"
#include "support/PlainTextPane.h"
#include "support/ScriptedDesktop.h"

namespace tagsmith {

/// The template as it is delivered.
inline constexpr std::string_view kTemplate =
    "<HTML>\r\n\r\n<HEAD>\r\n     <TITLE></TITLE>\r\n</HEAD>\r\n\r\n"
    "<BODY>\r\n\r\n\r\n\r\n\r\n</BODY>\r\n</HTML>\r\n";

/// The program on a scripted desktop, with a template beside it. Not started yet, so that a test
/// can lay down files and settings first.
struct RunningProgram {
  RunningProgram() { desktop.files.AddFile("c:\\tagsmith\\Template.html", kTemplate); }

  /// Starts it with that command tail.
  void Begin(std::string_view tail = {}) {
    desktop.platform.commandTail = tail;
    Start(app, form);
  }

  PlainTextPane& Pane() const { return dynamic_cast<PlainTextPane&>(form.txtEdit.Pane()); }

  /// The text with its selection, as in MarkedText; what is put in counts as no edit.
  void Put(std::string_view marked) {
    const MarkedText put = MarkedText::Read(marked);
    form.txtEdit.SetText(put.text);
    form.MarkUnchanged();
    Pane().Select(put.selStart, put.selLength);
  }
  std::string Shown() const {
    return MarkedText{form.txtEdit.Text(), Pane().SelStart(), Pane().SelLength()}.Write();
  }

  void Click(std::string_view button, int index = Control::kNoIndex) {
    form.Get<CommandButton>(button, index).Click();
  }
  /// Opens a file by the menu.
  void Open(const std::string& path) {
    desktop.ExpectOpenFile(path);
    form.mnuFileOpen.Click();
  }

  ScriptedDesktop desktop;
  Application app{desktop.platform};
  frmMain form{app};
};

}  // namespace tagsmith
