#pragma once

#include <string_view>

#include "core/Application.h"
#include "core/Startup.h"
#include "core/frmMain.h"
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

  ScriptedDesktop desktop;
  Application app{desktop.platform};
  frmMain form{app};
};

}  // namespace tagsmith
