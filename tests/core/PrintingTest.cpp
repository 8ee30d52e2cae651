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

  std::vector<PageRequest>& pages = Pane().pages;
};

// On a page of these margins 54 bytes fit.
constexpr std::size_t kBytesOfAPage = (15840 - 2 * 1440) / 240;

TEST_F(Printing, WholeDocumentGoesToPaperPageByPage) {
  form.txtEdit.SetText(std::string(2 * kBytesOfAPage, 'x') + "\xC3\xA4");
  Pane().Select(3, 4);
  desktop.ExpectPrinter(true, true);
  form.mnuFilePrint.Click();
  EXPECT_EQ(Log(), "StartDoc NewPage NewPage EndDoc ");
  ASSERT_EQ(pages.size(), 3U);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    EXPECT_EQ(pages[i].firstCharacter, i * kBytesOfAPage);
    EXPECT_EQ(pages[i].lastCharacter, -1);
    EXPECT_EQ(pages[i].drawing, (TwipsRect{1440 - 360, 1440 - 360, 9360, 12960}));
    EXPECT_EQ(pages[i].page, (TwipsRect{0, 0, 11520, 15120}));
    EXPECT_NE(pages[i].render, nullptr);
    EXPECT_EQ(pages[i].render, pages[i].measure);
  }
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
