#include "services/desktop/system/FileFilters.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

namespace tagsmith {
namespace {

TEST(FileFilters, KeepCaptionsAndMatchInAnyCase) {
  const QStringList filters = NameFilters("HTML Files|*.html;*.htm|PHP 3|*.php3");
  ASSERT_EQ(filters.size(), 2);
  EXPECT_TRUE(filters[0].startsWith("HTML Files ("));

  const QString patterns = filters[0].section('(', 1).chopped(1);
  // The patterns of a native dialog are matched as here: with case.
  const auto matches = [&](const QString& name) {
    for (const QString& pattern : patterns.split(' ')) {
      const auto wild = QRegularExpression::wildcardToRegularExpression(pattern);
      if (QRegularExpression(wild).match(name).hasMatch()) return true;
    }
    return false;
  };
  for (const char* name : {"a.html", "a.HTML", "a.Htm", "A.B.hTm"}) EXPECT_TRUE(matches(name));
  for (const char* name : {"a.htmx", "a.xhtml", "html", "a.htm.txt"}) EXPECT_FALSE(matches(name));
  // Saving takes the extension from the first pattern when the user picks another filter.
  EXPECT_TRUE(patterns.startsWith("*.html "));
}

TEST(FileFilters, KnowAllFilesAndPutUpWithUnevenText) {
  EXPECT_EQ(NameFilters("All Files|*.*|Exe Files|*.exe|Both|*.txt; *.*"),
            (QStringList{"All Files (*)", "Exe Files (*)", "Both (*)"}));
  EXPECT_EQ(NameFilters("Lonely caption"), QStringList{"Lonely caption (*)"});
  EXPECT_EQ(NameFilters("All|*|"), QStringList{"All (*)"});
  EXPECT_TRUE(NameFilters("|*.c").value(0).startsWith("*.c ("));
  EXPECT_TRUE(NameFilters("").isEmpty());
}

}  // namespace
}  // namespace tagsmith
