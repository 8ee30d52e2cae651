// The pages, scripts and style sheets that documentation packages put on this machine: each opens
// and saves back as the same bytes and one line end, or is refused for its size.

#include <gtest/gtest.h>

#include <set>

#include "Program.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kSizeLimit = 1'000'000;

std::vector<fs::path> RealPages() {
  const std::set<std::string> endings = {".html", ".htm", ".css", ".js", ".php"};
  std::vector<fs::path> pages;
  for (const char* folder : {"/usr/share/doc", "/usr/share/javascript", "/usr/share/nodejs",
                             "/usr/share/php", "/usr/share/developers-reference"}) {
    if (!fs::exists(folder)) continue;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied)) {
      if (entry.is_regular_file() && endings.contains(entry.path().extension().string())) {
        pages.push_back(entry.path());
      }
    }
  }
  return pages;
}

TEST(RealPages, ComeBackByteForByte) {
  const UserFolder user;
  Program program(user);
  frmMain& form = program.Form();
  const std::vector<fs::path> pages = RealPages();
  if (pages.size() < 300) GTEST_SKIP() << "only " << pages.size() << " pages on this machine";

  std::size_t saved = 0;
  for (const fs::path& page : pages) {
    if (fs::file_size(page) >= kSizeLimit) continue;  // The refusal has a test of its own.
    ASSERT_TRUE(form.LoadText(DriveMap::ToSystemPath(page.string()))) << page;
    form.SetDocumentName(user.SystemPath("copy"));
    form.mnuFileSave_Click();
    ASSERT_EQ(ReadBytes(user / "copy"), ReadBytes(page) + "\r\n") << page;
    ++saved;
  }
  RecordProperty("pages", static_cast<int>(saved));
}

}  // namespace
}  // namespace tagsmith
