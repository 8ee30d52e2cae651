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
  std::vector<fs::path> pages = RealPages();
  ASSERT_GE(pages.size(), 300U) << "install the documentation packages that test.sh names";
  std::string everyByte = "\x89PNG\r\n\x1A\n";
  for (int i = 0; i < 4096; ++i) everyByte += static_cast<char>((i * 151) & 0xFF);
  WriteBytes(user / "picture.png", everyByte);
  pages.push_back(user / "picture.png");

  const Answers answers;
  std::size_t refused = 0;
  for (const fs::path& page : pages) {
    const bool fits = fs::file_size(page) < kSizeLimit;
    ASSERT_EQ(form.LoadText(DriveMap::ToSystemPath(page.string())), fits) << page;
    if (!fits) {
      ++refused;
      continue;
    }
    form.SetDocumentName(user.SystemPath("copy"));
    form.mnuFileSave_Click();
    ASSERT_EQ(ReadBytes(user / "copy"), ReadBytes(page) + "\r\n") << page;
  }
  EXPECT_EQ(answers.Texts(),
            std::vector<std::string>(refused, "The File Is Too Large For Tagsmith"));
}

}  // namespace
}  // namespace tagsmith
