#include <gtest/gtest.h>

#include "integration/Install.h"
#include "integration/frmBrowser.h"
#include "integration/frmOptions.h"
#include "integration/frmVirtualPath.h"
#include "support/RunningProgram.h"

namespace tagsmith::integration {
namespace {

using Strings = std::vector<std::string>;

const std::string kPage = "c:\\web\\séte\\page one.html";

/// The program with two browsers and a document that has a file, seen by way of a server.
class Browsers : public testing::Test {
 protected:
  Browsers() {
    Install(program.app);
    for (const std::string& file : {std::string("c:\\b one\\run"), std::string("c:\\two"), kPage}) {
      desktop.files.AddFile(file, "x");
    }
    settings["Browsers/IE"] = "c:\\b one\\run";
    settings["Browsers/NN"] = "c:\\two";
    SetMapping("c:\\web\\", "http://h/", "yes");
    program.Begin(kPage);
  }

  void SetMapping(const char* physicalPath, const char* virtualPath, const char* use) {
    settings["Settings/PhysicalPath"] = physicalPath;
    settings["Settings/VirtualPath"] = virtualPath;
    settings["Settings/UseVPath"] = use;
  }
  void Expect(std::string_view prompt, std::string_view title) {
    desktop.ExpectMsgBox(prompt, kInformationIcon, title);
  }
  void ExpectMissingPage() { Expect(kPage, "The Following File Cannot Be Located"); }
  void ExpectNoBrowser() {
    Expect("You Have Not Specified A Browser Location Under View...Define Browser",
           "Cannot View In External Browser...");
  }
  void ExpectMustSave(std::optional<std::string> name) {
    Expect("You Must Save The File Before Viewing In External Browser", "Notice...");
    desktop.ExpectSaveFile(std::move(name));
  }
  /// Opens the form `T`, on which `act` acts as the user.
  template <class T>
  void Open(const char* opener, std::function<void(T&)> act) {
    desktop.OnModal<T>(std::move(act));
    Press(opener);
  }
  void Press(const char* name) {
    auto* menu = dynamic_cast<Menu*>(form.Find(name));
    menu != nullptr ? menu->Click() : form.Get<CommandButton>(name).Click();
  }

  RunningProgram program;
  ScriptedDesktop& desktop = program.desktop;
  frmMain& form = program.form;
  std::map<std::string, std::string, std::less<>>& settings = desktop.settings.values;
  Strings& started = desktop.shell.started;
};

TEST_F(Browsers, ShowTheFileAsItStandsOnTheDisk) {
  desktop.files.AddFile("c:\\tagsmith\\helpmain.html", "");
  form.InsertText("unsaved");
  Press("cmdIE");
  Press("cmdNN");
  Open<frmBrowser>("mnuBrowser", [](frmBrowser& browser) { browser.cmdIE.Click(); });
  form.SetDocumentName(kNoDocument);
  Open<frmBrowser>("cmdHelp", [](frmBrowser& browser) { browser.cmdNetscape.Click(); });
  EXPECT_EQ(started, (Strings{"c:\\b one\\run http://h/séte\\page one.html",
                              "c:\\two http://h/séte\\page one.html", "c:\\b one\\run " + kPage,
                              "c:\\two c:\\tagsmith\\helpmain.html"}));
  EXPECT_EQ(desktop.files.Contents(kPage), "x");
}

TEST_F(Browsers, AreGivenTheVirtualPathWhereverThePhysicalOneStands) {
  const auto target = [this](const char* physicalPath, const char* virtualPath, const char* use) {
    SetMapping(physicalPath, virtualPath, use);
    Press("cmdNN");
    return started.back().substr(7);
  };
  EXPECT_EQ(target("e", "EE", "yes"), "c:\\wEEb\\sétEE\\pagEE onEE.html");
  EXPECT_EQ(target("C:\\WEB\\", "http://h/", "yes"), kPage);
  EXPECT_EQ(target("", "http://h/", "yes"), kPage);
  EXPECT_EQ(target("c:\\web\\", "http://h/", "Yes"), kPage);
}

TEST_F(Browsers, NeedADocumentThatHasAFile) {
  for (const char* command : {"cmdIE", "cmdNN", "mnuBrowser"}) {
    form.SetDocumentName(kNoDocument);
    Expect("There Is No Document To Show", "View In Browser Aborted...");
    Press(command);
    form.mnuFileNew_Click();
    ExpectMustSave(std::nullopt);
    Press(command);
  }
  EXPECT_TRUE(started.empty());
  ExpectMustSave("c:\\web\\new.html");
  Press("cmdIE");
  EXPECT_EQ(started, Strings{"c:\\b one\\run http://h/new.html"});
}

TEST_F(Browsers, SayWhatIsMissingAndLeaveTheOtherToTry) {
  desktop.shell.failure = "c:\\two: Permission denied";
  program.app.gBrowser1Path.clear();
  ExpectNoBrowser();
  Press("cmdIE");
  Open<frmBrowser>("mnuBrowser", [this](frmBrowser& browser) {
    desktop.ExpectMsgBox(desktop.shell.failure, kOkOnly, "Tagsmith");
    browser.cmdNetscape.Click();
    ExpectNoBrowser();
    browser.cmdIE.Click();
    EXPECT_TRUE(browser.IsVisible());
    browser.cmdExit.Click();
  });

  program.app.gBrowser1Path = "c:\\gone";  // Not a word about it.
  desktop.files.Remove(kPage);
  Press("cmdIE");
  ExpectMissingPage();
  Press("cmdNN");
  Open<frmBrowser>("mnuBrowser", [this](frmBrowser& browser) {
    browser.cmdIE.Click();
    ExpectMissingPage();
    browser.cmdNetscape.Click();
    EXPECT_FALSE(browser.IsVisible());
  });
}

TEST_F(Browsers, AreDefinedByPathsThatLeadToFiles) {
  const auto define = [this](std::function<void(frmOptions&)> act) {
    Open<frmOptions>("mnuDefineBrowsers", std::move(act));
    EXPECT_EQ(program.app.gBrowser1Path, settings["Browsers/IE"]);
    EXPECT_EQ(program.app.gBrowser2Path, settings["Browsers/NN"]);
    return settings["Browsers/IE"] + "|" + settings["Browsers/NN"];
  };
  EXPECT_EQ(define([](frmOptions& options) {
              options.txtIE.SetText("c:\\two");
              options.UserClose();
            }),
            "c:\\b one\\run|c:\\two");
  EXPECT_EQ(define([this](frmOptions& options) {
              for (const auto& answer : {std::optional(kPage), std::optional<std::string>()}) {
                desktop.ExpectOpenFile(answer);
                options.cmdIE(1).Click();
                EXPECT_EQ(options.txtNN.Text(), kPage);
              }
              options.txtNN.SetText("  " + kPage + " ");
              options.txtIE.SetText("c:\\b one");
              options.cmdDone.Click();
            }),
            "c:\\b one\\run|" + kPage);
}

TEST_F(Browsers, KeepTheVirtualPathHoweverItsFormIsClosed) {
  form.MyDirectory.SetPath("c:\\web\\séte");
  const auto map = [this](std::function<void(frmVirtualPath&)> act) {
    Open<frmVirtualPath>("cmdVirtualPath", std::move(act));
    return settings["Settings/PhysicalPath"] + "|" + settings["Settings/VirtualPath"] + "|" +
           settings["Settings/UseVPath"];
  };
  EXPECT_EQ(map([](frmVirtualPath& path) {
              path.txtPhysicalPath.SetText(path.txtPhysicalPath.Text() + " ");
              path.txtVirtualPath.SetText("h ");
              path.chkUseVPath.Click();
              path.UserClose();
            }),
            "c:\\web\\séte\\ |h |no");
  settings.erase("Settings/VirtualPath");
  settings.erase("Settings/UseVPath");
  EXPECT_EQ(map([](frmVirtualPath& path) { path.cmdOk.Click(); }), "c:\\web\\séte\\|http://|no");
}

}  // namespace
}  // namespace tagsmith::integration
