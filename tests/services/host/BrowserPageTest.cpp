#include "services/host/HostFiles.h"
#include "services/host/HostShell.h"
#include "services/host/StartedProgram.h"

namespace tagsmith {
namespace {

using namespace test;

TEST(BrowserPageTest, ShowsADocumentOfAnAwkwardName) {
  const TemporaryFolder folder;
  const Report report(folder);
  // The browser tells the page as its script has made it.
  PutProgram(folder / "my browser",
             "exec timeout 90 chromium --headless --no-sandbox --disable-gpu --dump-dom"
             " --user-data-dir=\"$here/profile\" \"$@\" 2>/dev/null >\"$here/report\"");
  HostFiles files;
  const std::string page = folder.System("100%25 of $(me) & \"Ä#1?\".html");
  files.WriteFile(page,
                  "\xEF\xBB\xBF<p>x<script>document.body.innerHTML = 'shown: ' + "
                  "decodeURIComponent(location.pathname).split('/').pop()</script>",
                  Durability::kWritten);
  HostShell(files).Start(folder.System("my browser") + " " + page);
  EXPECT_NE(report.Read().find("shown: 100%25 of $(me) &amp; \"Ä#1?\".html"), std::string::npos);
}

}  // namespace
}  // namespace tagsmith
