#include "services/host/HostCalendar.h"

#include <gtest/gtest.h>

namespace tagsmith {
namespace {

constexpr LocalTime kMoment{2024, 3, 5, 14, 5, 9};

TEST(HostCalendar, DatesAreInTheLocalesFormsWithoutATimeZone) {
  const HostCalendar german("de_DE");
  EXPECT_EQ(german.LongDate(kMoment), "Dienstag, 5. März 2024");
  EXPECT_EQ(german.MediumDate(kMoment), "05-März-24");
  EXPECT_EQ(german.ShortDate(kMoment), "05.03.24");
  EXPECT_EQ(HostCalendar("zh_CN").GeneralDate(kMoment), "2024/3/5 14:05:09");
  EXPECT_EQ(HostCalendar("fr_CA").GeneralDate(kMoment), "2024-03-05 14 h 05 min 09 s");
}

}  // namespace
}  // namespace tagsmith
