#include "toolbars/catalogs/Catalogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "services/Lists.h"
#include "toolbars/ToolbarFixture.h"

namespace tagsmith::toolbars {
namespace {

class CatalogsTest : public ToolbarFixture {
 protected:
  ComboBox& Box(const char* name) { return form.Get<ComboBox>(name); }
};

struct Expected {
  const char* box;
  Catalog (*catalog)();
  int count;
  std::vector<std::size_t> families;
  std::vector<std::string> top;  ///< The first entries shown.
};

TEST_F(CatalogsTest, FillingShowsEveryEntryInOrderAndInsertsNothing) {
  EXPECT_TRUE(desktop.clipboard.history.empty());
  const Expected kBoxes[] = {
      {"cboHeadings", HeadingCatalog, 6, {6}, {"H1", "H2", "H3", "H4", "H5", "H6"}},
      {"cboASP", AspCatalog, 25, {14, 11}, {"Application.Lock", "Application.UnLock", "DATE_GMT"}},
      {"cboTags", TagCatalog, 91, {2, 37, 6, 10, 3, 17, 8, 8}, {"&amp;", "&copy;", "&gt;"}},
      {"cboCSS",
       CssCatalog,
       123,
       {11, 46, 1, 16, 2, 1, 16, 3, 2, 2, 3, 3, 13, 3, 1},
       {"background-attachment: fixed;", "background-attachment: scroll;"}},
      {"cboDHTML",
       DhtmlCatalog,
       253,
       {41, 3, 11, 21, 4, 9, 5, 4, 86, 8, 22, 39},
       {"document.activeElement", "document.alinkColor", "document.all"}},
      {"cboHTMLClass", HtmlClassCatalog, 19, {19}, {"$b = new HTML;", "$b->A();", "$b->BR();"}},
  };
  for (const Expected& expected : kBoxes) {
    SCOPED_TRACE(expected.box);
    const ComboBox& box = Box(expected.box);
    std::vector<std::string> shown;
    shown.reserve(static_cast<std::size_t>(box.ListCount()));
    for (int i = 0; i < box.ListCount(); ++i) shown.push_back(box.List(i));
    EXPECT_EQ(box.ListCount(), expected.count);
    EXPECT_EQ(std::set(shown.begin(), shown.end()).size(), shown.size());
    EXPECT_TRUE(std::equal(expected.top.begin(), expected.top.end(), shown.begin()));
    std::vector<std::size_t> families;
    for (const CatalogFamily& family : expected.catalog())
      families.push_back(family.entries.size());
    EXPECT_EQ(families, expected.families);
    EXPECT_EQ(box.Text(), expected.top.front());
  }
}

struct InsertCase {
  const char* box;
  const char* button;
  const char* entry;
  bool typed;  ///< Whether the field takes what is typed.
};

TEST_F(CatalogsTest, InsertButtonsReplaceTheSelectionByTheField) {
  const InsertCase kCases[] = {
      {"cboTags", "cmdInsert", "<META HTTP-EQUIV=REFRESH CONTENT=5; URL=New Location></META>",
       false},
      {"cboASP", "cmdASPDropIn", "Request.Cookies()", false},
      {"cboCSS", "cmdCSSInsert", "display: ;", true},
      {"cboDHTML", "cmdDHTMLInsert", "style.getAttribute()", true},
      {"cboHTMLClass", "cmdInsertHTMLClass", "include(\"./html_class.inc\");", true},
  };
  for (const InsertCase& row : kCases) {
    SCOPED_TRACE(row.box);
    ComboBox& box = Box(row.box);
    auto& button = form.Get<CommandButton>(row.button);
    int index = 0;
    while (index < box.ListCount() && box.List(index) != row.entry) ++index;
    Put("ä[ö]z");
    box.Select(index);
    EXPECT_EQ(Shown(), "ä[ö]z") << "choosing alone inserts nothing";
    button.Click();
    const std::string once = "ä" + std::string(row.entry) + "|z";
    EXPECT_EQ(Shown(), once);
    EXPECT_TRUE(form.txtEdit.HasFocus());

    Put("ä|z");
    box.UserEdit("é typed");
    button.Click();
    EXPECT_EQ(Shown(), row.typed ? "äé typed|z" : once);
  }
}

}  // namespace
}  // namespace tagsmith::toolbars
