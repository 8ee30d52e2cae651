#include <gtest/gtest.h>

#include <QApplication>
#include <QFont>
#include <QFontMetrics>

#include "services/desktop/windows/EditedText.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

TEST(TwipsScale, PixelsSurviveTheWayThroughTwipsAtEveryFactor) {
  for (const double factor : {1.0, 1.05, 1.2345, 1.5, 2.718}) {
    const TwipsScale scale(factor);
    for (int pixels = 0; pixels < 3000; ++pixels) {
      ASSERT_EQ(scale.ToPixels(scale.ToTwips(pixels)), pixels) << factor;
    }
  }
}

TEST(TwipsScale, NeighboursMeetAndNothingIsLost) {
  for (const double factor : {1.05, 1.23, 1.77}) {
    const TwipsScale scale(factor);
    for (Twips left = 0; left < 700; left += 7) {
      const QRect first = scale.ToPixels(TwipsRect{left, 0, 373, 100});
      const QRect second = scale.ToPixels(TwipsRect{left + 373, 0, 375, 100});
      ASSERT_EQ(first.x() + first.width(), second.x());
    }
  }
}

TEST(TwipsScale, GrowsWithTheFontAndIsNeverBelowTheOriginal) {
  QFont font = QApplication::font();
  font.setPointSize(5);
  EXPECT_DOUBLE_EQ(TwipsScale::ForFont(font).Factor(), 1.05);
  font.setPointSize(20);
  const double large = TwipsScale::ForFont(font).Factor();
  EXPECT_GT(large, 1.5);
  EXPECT_GE(TwipsScale::ForFont(font).ToPixels(255), QFontMetrics(font).height());
}

constexpr char16_t kEnd = 0x2029;

TEST(EditedText, LineEndsOutsideTheEditStay) {
  const std::string before = "a\r\nb\nc\rd\xC2\xA0\xE2\x82\xAC";
  QString shown = ShownText(before);
  EXPECT_EQ(shown.count(QChar(kEnd)), 3);
  EXPECT_EQ(MergeEdit(before, shown), before);

  QString inserted = shown;
  EXPECT_EQ(MergeEdit(before, inserted.insert(3, "xyz")), "a\r\nbxyz\nc\rd\xC2\xA0\xE2\x82\xAC");
  QString broken = shown;
  EXPECT_EQ(MergeEdit(before, broken.insert(5, QChar(kEnd))),
            "a\r\nb\nc\r\r\nd\xC2\xA0\xE2\x82\xAC");
  QString joined = shown;
  EXPECT_EQ(MergeEdit(before, joined.remove(1, 1)), "ab\nc\rd\xC2\xA0\xE2\x82\xAC");
  EXPECT_EQ(MergeEdit(before, QString()), "");
  EXPECT_EQ(MergeEdit("", QStringLiteral("new") + QChar(kEnd)), "new\r\n");
}

TEST(EditedText, SurrogatePairsThatShareAHalfAreNotTorn) {
  const std::string before = "x\xF0\x9F\x98\x80y";
  EXPECT_EQ(MergeEdit(before, QString::fromUtf8("x\xF0\x9F\x98\x81y")), "x\xF0\x9F\x98\x81y");
}

}  // namespace
}  // namespace tagsmith
