#include <gtest/gtest.h>

#include <QString>

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

constexpr char16_t kEnd = 0x2029;

TEST(EditedText, LineEndsOutsideTheEditStay) {
  const std::string before = "a\r\nb\nc\rd\xC2\xA0\xE2\x82\xAC";
  const QString shown = ShownText(before);
  EXPECT_EQ(shown.count(QChar(kEnd)), 3);
  EXPECT_EQ(MergeEdit(before, shown), before);
  EXPECT_EQ(MergeEdit(before, QString(shown).insert(5, QChar(kEnd))),
            "a\r\nb\nc\r\r\nd\xC2\xA0\xE2\x82\xAC");
  EXPECT_EQ(MergeEdit(before, QString(shown).remove(1, 1)), "ab\nc\rd\xC2\xA0\xE2\x82\xAC");
  EXPECT_EQ(MergeEdit("", QStringLiteral("new") + QChar(kEnd)), "new\r\n");
  // Surrogate pairs that share a half.
  EXPECT_EQ(MergeEdit("x\xF0\x9F\x98\x80y", QString::fromUtf8("x\xF0\x9F\x98\x81y")),
            "x\xF0\x9F\x98\x81y");
}

}  // namespace
}  // namespace tagsmith
