#include "generators/PhpPages.h"

#include <gtest/gtest.h>

#include "generators/PhpProjectFile.h"

namespace tagsmith::generators {
namespace {

PhpSite SiteOf(std::string_view fields) {
  return {"dsn", "{table}", "pä\"ss", "people", SplitFields(fields), true, true, true, true, true};
}

void ExpectPart(const std::string& text, const std::string& part) {
  EXPECT_NE(text.find(part), std::string::npos) << part << "\nin\n" << text;
}

TEST(PhpPages, CountFieldsAndCommasByTheLastToken) {
  const std::string cases[][3] = {
      {"Föö", "() VALUES ()", " "},
      {"A|String|B", "(A,) VALUES ('$A',)", "A='$A',  "},
      {"Ä|String| B|Numeric", "(Ä, B) VALUES ('$Ä','$ B')", "Ä='$Ä',  B='$ B' "},
      {"{name}|S||", "({name},) VALUES ('${name}','$')", "{name}='${name}', ='$' "},
  };
  for (const auto& [fields, columns, pairs] : cases) {
    const PhpSite site = SiteOf(fields);
    ExpectPart(AddPages(site)[1].text, "odbc_connect(\"dsn\",\"{table}\",\"pä\"ss\");");
    ExpectPart(AddPages(site)[1].text, "\r\n$query = \"INSERT INTO people " + columns + " \";");
    ExpectPart(UpdatePages(site)[2].text, "people SET " + pairs + "WHERE ID=$id \";\r\n");
  }
}

TEST(PhpPages, LeaveOutTheMenuLinkAndKeepTheOtherEmptyLines) {
  PhpSite site = SiteOf("");
  site.hasMenu = site.hasListAll = site.hasUpdate = false;
  ExpectPart(AddPages(site)[0].text, "<BR><HR>\r\n</BODY>");
  ExpectPart(UpdatePages(site)[1].text, "<BR><HR>\");\r\nprint (\"</BODY>");
  ExpectPart(ListAllPages(site)[0].text, "print (\"<BR>\");\r\nprint (\"</BODY>");
  ExpectPart(MenuPages(site)[0].text, "delete_listing.php>Delete</A><BR><BR>\r\n<BR><HR>\r\n");
}

TEST(PhpProjectFile, ComesBackWholeOrNotAtAll) {
  const PhpProject odd{"\"", "\"\"", " ü ", "a\"b\r\nc", "A|\"S\"\r\n\"\r\nB\"|\n\r\n"};
  for (const PhpProject& project : {PhpProject(), odd}) {
    EXPECT_EQ(ReadProject(WriteProject(project)), project);
  }
  const std::string marked = "\xEF\xBB\xBF\"d\"\n\"t\"\n\"u\"\n\"p\"\n\"f\"";
  EXPECT_EQ(ReadProject(marked), (PhpProject{"d", "t", "u", "p", "f"}));
  for (std::size_t length = 0; length < marked.size(); ++length) {
    EXPECT_FALSE(ReadProject(marked.substr(0, length))) << length;
  }
}

}  // namespace
}  // namespace tagsmith::generators
