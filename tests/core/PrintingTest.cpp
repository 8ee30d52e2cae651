#include <gtest/gtest.h>

#include "support/RunningProgram.h"

namespace tagsmith {
namespace {

class Printing : public testing::Test, protected RunningProgram {
 protected:
  Printing() {
    Begin();
    form.MyFileList.UserFocus();
  }

  std::string Log() const {
    std::string log;
    for (const std::string& call : desktop.printer.log) log += call + " ";
    return log;
  }
};

// On a page of these margins 54 bytes fit.
constexpr std::size_t kBytesOfAPage = (15840 - 2 * 1440) / 240;

TEST_F(Printing, WholeDocumentGoesToPaperPageByPage) {
  form.txtEdit.SetText(std::string(2 * kBytesOfAPage, 'x') + "\xC3\xA4");
  Pane().Select(3, 4);
  desktop.ExpectPrinter(true, true);
  form.mnuFilePrint.Click();
  ASSERT_EQ(Log(), "StartDoc NewPage NewPage EndDoc ");
  EXPECT_EQ(Pane().pages.back().lastCharacter, -1) << "not the selection's end";
  EXPECT_FALSE(Pane().formatting) << "what was kept for formatting is freed";
  EXPECT_EQ(form.MousePointer(), kDefaultPointer);
  EXPECT_TRUE(form.txtEdit.HasFocus());
}

TEST_F(Printing, FullPageAndEmptyDocumentMakeOneSheet) {
  for (const std::size_t size : {std::size_t{0}, kBytesOfAPage}) {
    form.txtEdit.SetText(std::string(size, 'x'));
    desktop.printer.log.clear();
    desktop.ExpectPrinter(false, true);
    form.cmdPrint.Click();
    EXPECT_EQ(Log(), "StartDoc EndDoc ") << size;
  }
}

TEST_F(Printing, CancelAndNoDocumentEndTheCommandWithoutAWord) {
  for (const bool cancelError : {false, true}) {
    form.dlgCommonDialog.cancelError = cancelError;
    desktop.ExpectPrinter(false, false);
    form.mnuFilePrint.Click();
    EXPECT_EQ(form.MousePointer(), kDefaultPointer);
    EXPECT_TRUE(form.MyFileList.HasFocus());
  }
  form.mnuFileClose.Click();
  form.mnuFilePrint.Click();
  EXPECT_EQ(Log(), "");
}

TEST_F(Printing, EveryFailureIsToldAndFreesWhatWasKept) {
  form.txtEdit.SetText(std::string(2 * kBytesOfAPage, 'x'));
  for (const char* call : {"StartDoc", "NewPage", "EndDoc"}) {
    desktop.printer.failingCall = call;
    desktop.ExpectPrinter(false, true);
    desktop.ExpectMsgBox("Make Sure The Printer Has Paper And Is Online...", kInformationIcon,
                         "Sorry, I Cannot Print...");
    form.mnuFilePrint.Click();
    EXPECT_FALSE(Pane().formatting) << call;
    EXPECT_EQ(form.MousePointer(), kDefaultPointer) << call;
    EXPECT_TRUE(form.MyFileList.HasFocus()) << call;
  }
}

}  // namespace
}  // namespace tagsmith
