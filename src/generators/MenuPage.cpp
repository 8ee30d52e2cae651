#include "generators/MenuPage.h"

#include <cstddef>

#include "core/Template.h"
#include "services/Lines.h"
#include "services/Utf8.h"

namespace tagsmith::generators {
namespace {

// --- The texts ---

constexpr std::string_view kHead = R"(<HTML>
<HEAD><TITLE></TITLE></HEAD>
<SCRIPT Language=JavaScript1.2 Src=resize.js></SCRIPT>
<SCRIPT Language=JavaScript1.2 Src=list.js></SCRIPT>
<SCRIPT Language=JavaScript1.2>
     function init() {
          var width, height=22;
          if (isNav4) width = 3*window.innerWidth/4;
          else width = 3*document.body.clientWidth/4;
          myList = new List(true, width, height);

)";

constexpr std::string_view kTopicOpening = R"(// {topic}

mySubList{i} = new List(false, width, height);
)";

constexpr std::string_view kEntry =
    R"(mySubList{i}.addItem("<A Target='_self' Href='{link}' Style='text-decoration: none' onMouseOver='this.style.textDecorationUnderline=true' onMouseOut='this.style.textDecorationNone=true'>{caption}</A>");
)";

constexpr std::string_view kTopicClosing = R"(myList.addList(mySubList{i},"<B>{topic}</B>");

)";

constexpr std::string_view kTail = R"(// Build The List
myList.build(10,70); }
</SCRIPT>
<STYLE Type="text/css">
#Spacer{position: absolute;}
{styles}</STYLE></HEAD>

<BODY onLoad='init();'>
<DIV ID=Spacer Name=Spacer></DIV>

{places}</BODY></HTML>)";

constexpr std::string_view kStyle = "#lItem{n}{position:absolute}\n";
constexpr std::string_view kPlace = R"(<DIV ID="lItem{n}" Name="lItem{n}"></DIV>
)";

// --- The menu text ---

// Takes the text before the next `separator` off the front of `rest`, the separator with it.
std::string_view TakePart(std::string_view& rest, std::string_view separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + separator.size());
  return part;
}

/// The topics as script, one behind the other.
class TopicScript {
 public:
  /// `line` has the number `index` in the menu text, empty lines counted.
  void Add(std::size_t index, std::string_view line);

  const std::string& Text() const { return text_; }
  /// One for each topic and two for each entry: at least as many as the menu has places to draw in.
  std::size_t Count() const { return count_; }

 private:
  std::string text_;
  std::size_t count_ = 0;
};

void TopicScript::Add(std::size_t index, std::string_view line) {
  const std::string number = std::to_string(index);
  const std::string_view topic = TakePart(line, "|");
  text_ += FillTemplate(kTopicOpening, {{"topic", topic}, {"i", number}});
  ++count_;
  // What is left without a bar is a caption without a link.
  while (line.find('|') != std::string_view::npos) {
    const std::string_view caption = TakePart(line, "|");
    const std::string_view link = TakePart(line, "|");
    text_ += FillTemplate(kEntry, {{"i", number}, {"link", link}, {"caption", caption}});
    count_ += 2;
  }
  text_ += FillTemplate(kTopicClosing, {{"topic", topic}, {"i", number}});
}

// Takes the first line off the front of `rest`, and gives it without its line end.
std::string_view TakeLine(std::string_view& rest) {
  const std::size_t next = NextLineStart(rest, 0);
  std::string_view line = rest.substr(0, next);
  rest.remove_prefix(next);
  while (line.ends_with('\r') || line.ends_with('\n')) line.remove_suffix(1);
  return line;
}

TopicScript ReadTopics(std::string_view menu) {
  if (menu.starts_with(kByteOrderMark)) menu.remove_prefix(kByteOrderMark.size());
  TopicScript script;
  for (std::size_t index = 0; !menu.empty(); ++index) {
    const std::string_view line = TakeLine(menu);
    if (!line.empty()) script.Add(index, line);
  }
  return script;
}

// `line` with the numbers from 0 to `last`.
std::string Numbered(std::string_view line, std::size_t last) {
  std::string lines;
  for (std::size_t n = 0; n <= last; ++n) lines += FillTemplate(line, {{"n", std::to_string(n)}});
  return lines;
}

}  // namespace

std::string MenuPage(std::string_view menu) {
  const TopicScript script = ReadTopics(menu);
  return FillTemplate(kHead) + script.Text() +
         FillTemplate(kTail, {{"styles", Numbered(kStyle, script.Count())},
                              {"places", Numbered(kPlace, script.Count())}});
}

}  // namespace tagsmith::generators
