#pragma once

#include <gtest/gtest.h>

#include <string>

#include "core/Application.h"
#include "core/frmMain.h"
#include "support/ScriptedDesktop.h"
#include "toolbars/Install.h"

namespace tagsmith::toolbars {

/// The main form with the toolbars on it, started, an empty document open.
class ToolbarFixture : public testing::Test {
 protected:
  ToolbarFixture() {
    desktop.files.AddFile("c:\\tagsmith\\Template.html", "");
    Install(application);
    form.Load();
  }

  /// Makes `marked` the text: "|" is the caret, "[" and "]" are the ends of the selection.
  void Put(std::string marked) {
    const std::size_t start = marked.find_first_of("|[");
    marked.erase(start, 1);
    const std::size_t end = marked.find(']', start);
    if (end != std::string::npos) marked.erase(end, 1);
    form.txtEdit.SetText(marked);
    form.txtEdit.SetSelStart(start);
    if (end != std::string::npos) form.txtEdit.SetSelLength(end - start);
  }

  /// The text, marked as for `Put`.
  std::string Shown() const {
    std::string text = form.txtEdit.Text();
    const std::size_t start = form.txtEdit.SelStart();
    const std::size_t length = form.txtEdit.SelLength();
    if (length == 0) return text.insert(start, "|");
    return text.insert(start + length, "]").insert(start, "[");
  }

  ScriptedDesktop desktop;
  Application application{desktop.platform};
  frmMain form{application};
};

}  // namespace tagsmith::toolbars
