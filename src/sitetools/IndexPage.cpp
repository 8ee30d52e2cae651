#include "sitetools/IndexPage.h"

#include <initializer_list>
#include <utility>
#include <vector>

#include "core/Template.h"
#include "core/general1.h"
#include "services/CaseFold.h"
#include "services/FileSystem.h"
#include "services/Utf8.h"

namespace tagsmith::sitetools {
namespace {

// A page has a line or more for each file: no template is read for those.
void Append(std::string& text, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) text += part;
}

constexpr std::string_view kTail = "</BODY>\r\n</HTML>";

// --- The plain lists ---

constexpr std::string_view kListHead = R"(<HTML>
<HEAD>
     <TITLE></TITLE>
</HEAD>
<BODY>
)";

constexpr std::string_view kListUnderline =
    R"( style="text-decoration: none" onMouseOver="this.style.textDecorationUnderline=true" onMouseOut="this.style.textDecorationNone=true")";

/// Where the plain lists differ: whole lines, and what lines begin with.
struct ListFormat {
  std::string_view opening;
  std::string_view directoryLead;
  std::string_view filesOpening;
  std::string_view fileLead;
  std::string_view filesClosing;
  std::string_view closing;
};

constexpr ListFormat kIndented = {
    "", "", "", "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp; ", "", ""};

constexpr ListFormat ListsIn(std::string_view opening, std::string_view closing) {
  return {opening, "   <LI>", "     <UL>\r\n", "          <LI>", "     </UL>\r\n", closing};
}

constexpr ListFormat kUnordered = ListsIn("<UL>\r\n", "</UL>\r\n");
constexpr ListFormat kOrdered = ListsIn("<OL>\r\n", "</OL>\r\n");

class ListPage : public IndexPage {
 public:
  ListPage(const ListFormat& format, bool underline)
      : format_(format), attributes_(underline ? kListUnderline : std::string_view()) {
    Append(text_, {FillTemplate(kListHead), format_.opening});
  }

  void BeginDirectory(std::string_view name, bool hasFiles) override {
    directory_ = name;
    hasFiles_ = hasFiles;
    Append(text_, {format_.directoryLead, "<B>", name, "</B> <BR>\r\n"});
    if (hasFiles) text_ += format_.filesOpening;
  }

  void AddFile(std::string_view name) override {
    Append(text_, {format_.fileLead, "<A HREF=\"", directory_, "/", name, "\" ", attributes_, ">",
                   name, "</A> <BR>\r\n"});
  }

  void EndDirectory() override {
    if (hasFiles_) text_ += format_.filesClosing;
  }

  std::string Finish() override {
    Append(text_, {format_.closing, kTail});
    return WithByteOrderMark(std::move(text_));
  }

 private:
  const ListFormat& format_;
  std::string_view attributes_;
  std::string text_;
  std::string directory_;
  bool hasFiles_ = false;
};

// --- The menu ---

constexpr std::string_view kMenuHead = R"(<HTML>
<HEAD>
<TITLE></TITLE>
<SCRIPT Language="JavaScript1.2" Src="list.js"></Script>
<SCRIPT Language="JavaScript1.2">
      function init() {
             var width = 3 * document.body.clientWidth / 4, height = 22;
             myList = new List(true, width, height);
)";

constexpr std::string_view kMenuScriptEnd = R"(             myList.build(25,25); }
</SCRIPT>
<STYLE TYPE="text/css">
)";

constexpr std::string_view kMenuHeadEnd = R"(
</Style>
</HEAD>
<BODY onLoad="init();">
)";

// The links stand in texts of the script, in double quotes.
constexpr std::string_view kMenuUnderline =
    " style='text-decoration: none' onMouseOver='this.style.textDecorationUnderline=true' "
    "onMouseOut='this.style.textDecorationNone=true'";

constexpr std::string_view kMenuIndent = "             ";

class EMenuPage : public IndexPage {
 public:
  explicit EMenuPage(bool underline)
      : attributes_(underline ? kMenuUnderline : std::string_view()),
        text_(FillTemplate(kMenuHead)) {}

  void BeginDirectory(std::string_view name, bool hasFiles) override;
  void AddFile(std::string_view name) override;
  void EndDirectory() override;
  std::string Finish() override;

 private:
  std::string_view attributes_;
  std::string text_;
  std::string directory_;
  std::string list_;            ///< The script's name for the list of the directory's files.
  std::size_t listCount_ = 0;   ///< Of directories with files.
  std::size_t placeCount_ = 0;  ///< Two for each directory, one for each file.
};

void EMenuPage::BeginDirectory(std::string_view name, bool hasFiles) {
  directory_ = name;
  placeCount_ += 2;
  list_.clear();
  if (!hasFiles) return;
  list_ = "mySubList" + std::to_string(++listCount_);
  Append(text_, {kMenuIndent, list_, " = new List(false, width, height);\r\n"});
}

void EMenuPage::AddFile(std::string_view name) {
  ++placeCount_;
  Append(text_, {kMenuIndent, list_, ".addItem(\"<A Target=_self HREF='", directory_, "/", name,
                 "' ", attributes_, ">", GetNameBeforeDot(name), "</A>\");\r\n"});
}

void EMenuPage::EndDirectory() {
  if (list_.empty()) {
    Append(text_, {kMenuIndent, "myList.addItem(\"<B>", directory_, "</B>\");\r\n"});
  } else {
    Append(text_, {kMenuIndent, "myList.addList(", list_, ",\"<B>", directory_, "</B>\");\r\n"});
  }
}

std::string EMenuPage::Finish() {
  text_ += FillTemplate(kMenuScriptEnd);
  for (std::size_t k = 0; k < placeCount_; ++k) {
    Append(text_, {"#lItem", std::to_string(k), "{ position:absolute; }\r\n"});
  }
  text_ += FillTemplate(kMenuHeadEnd);
  for (std::size_t k = 0; k < placeCount_; ++k) {
    const std::string number = std::to_string(k);
    Append(text_, {"<DIV ID=\"lItem", number, "\" NAME=\"lItem", number, "\"></DIV>\r\n"});
  }
  text_ += kTail;
  return WithByteOrderMark(std::move(text_));
}

// --- Reading the directory ---

std::vector<std::string> Sorted(std::vector<std::string> names) {
  SortWithoutCase(names);
  return names;
}

}  // namespace

std::unique_ptr<IndexPage> MakeIndexPage(IndexFormat format, bool underline) {
  switch (format) {
    case IndexFormat::kIList:
      return std::make_unique<ListPage>(kIndented, underline);
    case IndexFormat::kUList:
      return std::make_unique<ListPage>(kUnordered, underline);
    case IndexFormat::kOList:
      return std::make_unique<ListPage>(kOrdered, underline);
    case IndexFormat::kEMenu:
      break;
  }
  return std::make_unique<EMenuPage>(underline);
}

std::optional<std::string> BuildIndexPage(const FileSystem& files, std::string_view directory,
                                          IndexFormat format, bool underline,
                                          IndexWatcher& watcher) {
  // Not trimmed: a directory's name may end in a blank.
  const std::string above = std::string(directory) + (directory.ends_with('\\') ? "" : "\\");
  const std::unique_ptr<IndexPage> page = MakeIndexPage(format, underline);
  const std::vector<std::string> directories = Sorted(files.DirectoryNames(directory));
  watcher.OnStart(directories.size());
  for (std::size_t i = 0; i < directories.size(); ++i) {
    const std::string path = above + directories[i];
    watcher.OnDirectory(i, path);
    const std::vector<std::string> names = Sorted(files.FileNames(path));
    page->BeginDirectory(directories[i], !names.empty());
    for (const std::string& name : names) {
      page->AddFile(name);
      if (!watcher.OnFile()) return std::nullopt;
    }
    page->EndDirectory();
  }
  return page->Finish();
}

}  // namespace tagsmith::sitetools
