#include <gtest/gtest.h>

#include "core/frmSplash.h"
#include "services/CommonDialog.h"
#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

constexpr int kPromptFlags = 35;
constexpr const char* kPromptTitle = "Save on Open...";
constexpr const char* kOpening = "Save Current Before Opening Another File?";
constexpr const char* kCannotWrite =
    "The file may be read-only, you may not have enough permissions, \r\n"
    "or the disk is full or write-protected";

class Document : public testing::Test, protected RunningProgram {
 protected:
  Document() {
    desktop.files.AddFile("c:\\site\\a.html", "é a");
    desktop.files.AddFile("c:\\site\\b.html", "é b");
    Begin();
  }

  // Loads the bytes from a file, types and saves, and gives what is on the disk then.
  std::string LoadAndSave(std::string_view bytes, std::string_view typed) {
    desktop.files.AddFile("c:\\raw.html", bytes);
    Open("c:\\raw.html");
    Pane().Type(typed);
    form.mnuFileSave.Click();
    return desktop.files.Contents("c:\\raw.html");
  }

  // Edits the document, and answers the prompt that this brings.
  void EditAndExpectPrompt(std::string_view prompt, int answer) {
    Pane().Type("ö");
    desktop.ExpectMsgBox(prompt, kPromptFlags, kPromptTitle, answer);
  }

  void ExpectState(std::string_view name, std::string_view text, bool changed) {
    EXPECT_EQ(form.DocumentName(), name);
    EXPECT_EQ(form.Caption(), name == "Ready..." ? "Tagsmith" : "Tagsmith - " + std::string(name));
    EXPECT_EQ(form.txtEdit.Text(), text);
    EXPECT_EQ(form.DocumentChanged(), changed);
    EXPECT_EQ(form.MousePointer(), kDefaultPointer);
  }
};

TEST_F(Document, KeepsTheEncodingOfItsFileWhereThatHoldsTheText) {
  EXPECT_EQ(LoadAndSave("caf\xE9", "ü"),
            "\xFC"
            "caf\xE9\r\n")
      << "the file's encoding stays";
  EXPECT_EQ(desktop.files.LastDurability(), Durability::kFlushed);
  EXPECT_EQ(LoadAndSave("caf\xE9", "Ω"), "Ωcafé\r\n") << "unless it cannot hold the text";
  Pane().Undo();
  EXPECT_EQ(form.txtEdit.Text(), "café") << "the typing is undone";
  Pane().Undo();
  EXPECT_EQ(form.txtEdit.Text(), "café") << "and nothing from before the load";
}

// The file has a tab, which must not load it a second time behind the user's back.
TEST_F(Document, KeepsNameTextAndPlaceOfTheOldDocumentWhenALoadFails) {
  desktop.files.AddFile("c:\\other\\secret.html", "s");
  Open("c:\\other\\secret.html");
  Open("c:\\site\\a.html");
  desktop.files.SetFault("c:\\other\\secret.html", MemoryFiles::Fault::kUnreadable);

  EditAndExpectPrompt(kOpening, kNo);
  desktop.ExpectOpenFile("c:\\other\\secret.html");
  desktop.ExpectMsgBox("Error Loading Text", kInformationIcon, "Sorry...");
  form.mnuFileOpen.Click();
  ExpectState("c:\\site\\a.html", "öé a", true);
  EXPECT_EQ(form.mnuRecentlyUsed(0).Caption(), "c:\\other\\secret.html");
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\other");

  form.mnuFileSave.Click();
  EXPECT_EQ(desktop.files.Contents("c:\\site\\a.html"), "öé a\r\n");
}

TEST_F(Document, PromptGuardsEditsAndCancelChangesNothing) {
  Open("c:\\site\\a.html");
  Pane().Type("ö");
  Pane().Select(1, 3);
  for (Menu* command : {&form.mnuFileNew, &form.mnuFileOpen}) {
    desktop.ExpectMsgBox(kOpening, kPromptFlags, kPromptTitle, kCancel);
    command->Click();
  }
  desktop.ExpectMsgBox("Save Current File Before Closing?", kPromptFlags, kPromptTitle, kCancel);
  form.mnuFileClose.Click();
  ExpectState("c:\\site\\a.html", "öé a", true);
  EXPECT_EQ(form.txtEdit.SelLength(), 4U);

  desktop.ExpectMsgBox(kOpening, kPromptFlags, kPromptTitle, kYes);
  form.mnuFileNew.Click();
  EXPECT_EQ(desktop.files.Contents("c:\\site\\a.html"), "öé a\r\n");
  ExpectState("Untitled.html", kTemplate, false);
  EXPECT_EQ(form.MyDirectory.Path(), "c:\\tagsmith");

  EditAndExpectPrompt(kOpening, kYes);
  desktop.ExpectSaveFile(std::nullopt);
  Open("c:\\site\\b.html");
  ExpectState("c:\\site\\b.html", "é b", false);
}

TEST_F(Document, CancelledDialogsUseNoEarlierName) {
  Open("c:\\site\\a.html");
  for (const bool cancelError : {false, true}) {
    form.dlgCommonDialog.cancelError = cancelError;
    Pane().Type("x");
    desktop.ExpectSaveFile(std::nullopt);
    form.mnuFileSaveAs.Click();
    desktop.ExpectMsgBox(kOpening, kPromptFlags, kPromptTitle, kNo);
    desktop.ExpectOpenFile(std::nullopt);
    form.mnuFileOpen.Click();
  }
  ExpectState("c:\\site\\a.html", "xxé a", true);
  EXPECT_EQ(desktop.files.Contents("c:\\site\\a.html"), "é a");
}

TEST_F(Document, SaveAsNamesTheDocumentAfterItsNewFile) {
  Pane().Select(0, 0);
  Pane().Type("ü");
  form.MyDirectory.SetPath("c:\\site");
  desktop.ExpectSaveFile("c:\\site\\c");
  form.cmdSave.Click();
  const std::string text = "ü" + std::string(kTemplate);
  ExpectState("c:\\site\\c", text, false);
  EXPECT_EQ(desktop.files.Contents("c:\\site\\c"), text + "\r\n");
  EXPECT_EQ(form.MyFileList.ListCount(), 3);

  Pane().Type("y");
  desktop.files.SetFault("c:\\site", MemoryFiles::Fault::kDiskFull);
  desktop.ExpectSaveFile("c:\\site\\d");
  form.mnuFileSaveAs.Click();
  ExpectState("c:\\site\\c", "üy" + std::string(kTemplate), true);
}

TEST_F(Document, FailedSaveOffersAnotherPlace) {
  Open("c:\\site\\a.html");
  desktop.files.SetFault("c:\\site\\a.html", MemoryFiles::Fault::kNotWritable);
  Pane().Type("ü");
  desktop.ExpectMsgBox(kCannotWrite, kInformationIcon, "Sorry...");
  desktop.ExpectSaveFile(std::nullopt);
  form.mnuFileSave.Click();
  ExpectState("c:\\site\\a.html", "üé a", true);

  desktop.files.Remove("c:\\site");
  desktop.ExpectMsgBox(kCannotWrite, kInformationIcon, "Sorry...");
  desktop.ExpectSaveFile("c:\\elsewhere.html");
  form.mnuFileSave.Click();
  ExpectState("c:\\elsewhere.html", "üé a", false);
}

// A drop or a middle click reaches the pane before its focus does.
TEST_F(Document, KeepsWhatTheUserPutsIntoAClosedPane) {
  form.mnuFileClose.Click();
  Pane().Type("dropp\xC3\xA9");
  form.txtEdit.UserFocus();
  ExpectState("Untitled.html", "dropp\xC3\xA9", true);
}

TEST_F(Document, ClosesAndStartsAnewWhenThePaneGetsTheFocus) {
  form.mnuFileClose.Click();
  Open("c:\\site\\a.html");
  EXPECT_TRUE(form.txtEdit.HasFocus()) << "an opened document takes the keys";
  ExpectState("c:\\site\\a.html", "é a", false);
  EditAndExpectPrompt("Save Current File Before Closing?", kNo);
  form.mnuFileClose.Click();
  ExpectState("Ready...", "", false);
  EXPECT_FALSE(form.txtEdit.HasFocus());
  Pane().Undo();
  EXPECT_EQ(form.txtEdit.Text(), "");
  EXPECT_EQ(form.DocumentEncoding(), TextEncoding::kUtf8);
  form.txtEdit.UserFocus();
  ExpectState("Untitled.html", kTemplate, false);
  form.mnuFileClose.Click();
  EXPECT_TRUE(form.cmdSave.Enabled());  // The emptied pane has changed.
  desktop.ExpectMsgBox("There Is No Document To Save", kInformationIcon, "Save Aborted...");
  form.cmdSave.Click();
  ExpectState("Untitled.html", kTemplate, false);
}

TEST_F(Document, AnInsertionIsNeverLostToTheDocumentThatItStarts) {
  form.mnuFileClose.Click();
  form.InsertText("é");
  ExpectState("Untitled.html", "é" + std::string(kTemplate), true);

  form.SetDocumentChanged(false);
  form.mnuFileClose.Click();
  form.ReplaceDocument("whole pägé");
  ExpectState("Untitled.html", "whole pägé", false);
}

TEST_F(Document, TheEndAsksForEditsAndTakesTheOtherFormsAlong) {
  app.Instance<frmSplash>().Show();
  EditAndExpectPrompt("Save Current Before Closing?", kCancel);
  form.mnuFileExit.Click();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(desktop.settings.values.contains("Settings/Drive"));
  EXPECT_NE(app.platform.forms.Loaded<frmSplash>(), nullptr);

  EditAndExpectPrompt("Save Current Before Closing?", kYes);
  desktop.ExpectSaveFile(std::nullopt);
  form.UserClose();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_TRUE(desktop.settings.values.contains("Settings/RU9"));
  EXPECT_EQ(app.platform.forms.Loaded<frmSplash>(), nullptr);
}

}  // namespace
}  // namespace tagsmith
