// What comes out on paper, by way of the real printer's PDF file.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QProcess>
#include <QRegularExpression>
#include <QSpinBox>
#include <utility>

#include "Program.h"
#include "core/general1.h"
#include "services/Error.h"
#include "services/desktop/system/QtPrinter.h"

namespace tagsmith {
namespace {

// In points.
struct Page {
  QRectF paper;
  std::vector<QRectF> words;
};

class PrintedPages : public ::testing::Test {
 protected:
  QPrinter& Device() { return dynamic_cast<QtPrinter&>(program_.App().platform.printer).Device(); }
  RichTextBox& Pane() { return program_.Form().txtEdit; }

  void Print(std::string_view text) {
    Pane().SetText(text);
    Device().setOutputFileName(QString::fromStdString(file_));
    PrintRichText(Pane(), 1440, 1440, 1440, 1440);
    Read();
  }

  void Read() {
    static const QRegularExpression element(
        R"re(<page width="(.+)" height="(.+)">|)re"
        R"re(<word xMin="(.+)" yMin="(.+)" xMax="(.+)" yMax="(.+)">(.*)</word>)re");
    QProcess process;
    process.start("pdftotext", {"-bbox", QString::fromStdString(file_), "-"});
    ASSERT_TRUE(process.waitForFinished() && process.exitCode() == 0);
    pages_.clear();
    text_.clear();
    auto all = element.globalMatch(QString::fromUtf8(process.readAllStandardOutput()));
    while (all.hasNext()) {
      const QRegularExpressionMatch match = all.next();
      const auto point = [&match](int index) {
        return QPointF(match.captured(index).toDouble(), match.captured(index + 1).toDouble());
      };
      if (match.captured(7).isEmpty()) {
        pages_.push_back({QRectF({}, point(1)), {}});
      } else {
        pages_.back().words.emplace_back(point(3), point(5));
        text_ += match.captured(7).toStdString();
      }
    }
  }

  std::vector<Page> pages_;
  std::string text_;  // All words of all pages, in reading order.
  UserFolder user_;
  std::string file_ = (user_ / "out.pdf").string();
  Program program_{user_};
};

// The first word stands an inch from the corner, and none comes nearer to an edge.
void ExpectMargins(const std::vector<Page>& pages) {
  constexpr double kRounding = 0.1;
  constexpr double kInch = 72;
  for (const Page& page : pages) {
    ASSERT_FALSE(page.words.empty());
    EXPECT_NEAR(page.words.front().left(), kInch, kRounding);
    EXPECT_NEAR(page.words.front().top(), kInch, 1) << "the box of a word is not quite its line's";
    const QMarginsF margins(kInch, kInch, kInch, kInch);
    const QRectF area = page.paper.marginsRemoved(margins).adjusted(-kRounding, -1, kRounding, 1);
    for (const QRectF& word : page.words) EXPECT_TRUE(area.contains(word));
  }
}

TEST_F(PrintedPages, HoldEveryLineOnceInsideTheMargins) {
  std::string text;
  std::string words;
  for (int i = 0; i < 200; ++i) {
    const std::string word = "Stra\xC3\x9F" + std::to_string(i) + "\xE2\x82\xAC";
    text += word + (i % 3 == 0 ? "\r\n" : i % 3 == 1 ? "\n" : "\r");
    words += word;
  }
  const std::tuple<QPageSize::PageSizeId, QPageLayout::Orientation, QSizeF> papers[] = {
      {QPageSize::Letter, QPageLayout::Portrait, {612, 792}},
      {QPageSize::A4, QPageLayout::Landscape, {842, 595}}};
  for (const auto& [size, orientation, points] : papers) {
    Device().setPageSize(QPageSize(size));
    Device().setPageOrientation(orientation);
    Print(text);
    EXPECT_EQ(text_, words);
    ExpectMargins(pages_);
    ASSERT_GE(pages_.size(), 3U);
    EXPECT_EQ(pages_.front().paper.size(), points);
    EXPECT_EQ(pages_.at(1).words.size(), pages_.front().words.size()) << "pages are full";
  }
}

TEST_F(PrintedPages, WrapALineThatIsLongerThanAPage) {
  std::string line;
  for (int i = 0; i < 3000; ++i) line += "word" + std::to_string(i) + " ";
  std::string words = line;
  std::erase(words, ' ');
  FontSpec font = Pane().SelFont();
  font.underline = font.strikeThru = true;
  Pane().SetSelFont(font);
  Print(line + std::string(40'000, 'm') + "\r\nend");
  EXPECT_EQ(text_, words + std::string(40'000, 'm') + "end");
  ExpectMargins(pages_);
}

TEST_F(PrintedPages, KeepToOrderAndCopiesOfTheDialog) {
  FontSpec font = Pane().SelFont();
  font.size = 150;  // A letter a page.
  Pane().SetSelFont(font);
  Pane().SetText("a\nb\nc");
  Device().setPageSize(QPageSize(QPageSize::A6));
  Device().setOutputFileName("x.pdf");  // A file it is, whatever printers there are.
  for (const auto& [collate, pages] : {std::pair(true, "cbacba"), std::pair(false, "ccbbaa")}) {
    file_ = (user_ / pages).string();
    const WhenAsked<QPrintDialog> asked([this, collate = collate](QPrintDialog& dialog) {
      dialog.findChild<QLineEdit*>("filename")->setText(QString::fromStdString(file_));
      dialog.findChild<QSpinBox*>("copies")->setValue(2);
      dialog.findChild<QCheckBox*>("reverse")->setChecked(true);
      dialog.findChild<QCheckBox*>("collate")->setChecked(collate);
      dialog.accept();
    });
    program_.Form().mnuFilePrint.Click();
    Read();
    EXPECT_EQ(text_, pages);
  }
}

TEST_F(PrintedPages, JobThatFailsLeavesTheOldFile) {
  WriteBytes(file_, "old");
  const FontSpec usual = Pane().SelFont();
  FontSpec huge = usual;
  huge.size = 500;
  Pane().SetSelFont(huge);
  Device().setPageSize(QPageSize(QPageSize::A6));
  EXPECT_THROW(Print("x"), Error) << "nothing fits";
  EXPECT_EQ(ReadBytes(file_), "old");
  Pane().SetSelFont(usual);
  Print("");
  EXPECT_EQ(pages_.size(), 1U) << "the next job works";

  file_ = (user_ / "none" / "out.pdf").string();
  EXPECT_THROW(Print("x"), Error);
}

}  // namespace
}  // namespace tagsmith
