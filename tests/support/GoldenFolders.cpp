#include "support/GoldenFolders.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <sstream>

#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/Menu.h"
#include "services/Ranges.h"
#include "services/TextBox.h"

namespace tagsmith {
namespace {

namespace fs = std::filesystem;

/// Where the user is: at the main form, or in a modal one above it.
struct Place {
  RunningProgram& program;
  Form& form;
};

void Play(const Place& place, const std::string& lines);

// --- Reading a line ---

/// The parts before and behind the first `mark`; the second is empty if there is none.
std::pair<std::string, std::string> Cut(const std::string& text, char mark) {
  const std::size_t at = std::min(text.find(mark), text.size());
  return {text.substr(0, at), text.substr(std::min(at + 1, text.size()))};
}

std::array<std::string, 4> FourFields(std::string text) {
  std::array<std::string, 4> fields;
  for (std::string& field : fields) std::tie(field, text) = Cut(text, '|');
  return fields;
}

std::string WithLineBreaks(std::string text) {
  for (std::size_t at = 0; (at = text.find("\\n", at)) != std::string::npos;) {
    text.replace(at, 2, "\r\n");
  }
  return text;
}

std::optional<Colour> ColourNamed(const std::string& text) {
  if (text == "cancel") return {};
  const int value = std::stoi(text, nullptr, 16);
  return (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
}

/// What stands before the "end" that closes a form.
std::string LinesOfForm(std::istream& lines) {
  std::string block;
  for (std::string line; std::getline(lines, line) && line != "end";) block += line + "\n";
  return block;
}

// --- The user's actions ---

template <class T>
T& Named(const Place& place, const std::string& text) {
  const auto [name, index] = Cut(text, '(');
  return place.form.Get<T>(name, index.empty() ? Control::kNoIndex : std::stoi(index));
}

void Click(const Place& place, const std::string& name) {
  auto& control = Named<Control>(place, name);
  if (auto* menu = dynamic_cast<Menu*>(&control)) return menu->Click();
  dynamic_cast<CommandButton&>(control).Click();
}

void Type(const Place& place, const std::string& text) {
  if (&place.form == &place.program.form) return place.program.Pane().Type(text);
  const auto [name, typed] = Cut(text, ' ');
  Named<TextBox>(place, name).Type(typed);
}

void Edit(const Place& place, const std::string& text) {
  const auto [name, edited] = Cut(text, ' ');
  auto& field = Named<Control>(place, name);
  if (auto* combo = dynamic_cast<ComboBox*>(&field)) return combo->UserEdit(edited);
  dynamic_cast<TextBox&>(field).UserEdit(edited);
}

template <class List>
void Select(List& box, const std::string& item) {
  int index = 0;
  while (index < box.ListCount() && box.List(index) != item) ++index;
  EXPECT_LT(index, box.ListCount()) << box.Name() << " has no item " << item;
  box.Select(index);
}

void Choose(const Place& place, const std::string& text) {
  const auto [name, item] = Cut(text, ' ');
  Select(Named<ItemBox>(place, name), item);
}

void Slide(const Place& place, const std::string& text) {
  const auto [name, value] = Cut(text, ' ');
  Named<Slider>(place, name).MoveTo(std::stoi(value));
}

void SelectCell(const Place& place, const std::string& text) {
  const auto [row, column] = Cut(text, ' ');
  Named<MSFlexGrid>(place, "MyTable").Select(std::stoi(row) - 1, std::stoi(column) - 1);
}

void Drop(const Place& place, const std::string& name) {
  frmMain& form = place.program.form;
  form.MyDirectory.SetPath("c:\\art");
  Select(form.MyFileList, name);
  form.txtEdit.Drop(form.MyFileList, 150, 150);
}

void ExpectInputBox(const Place& place, const std::string& text) {
  const auto [prompt, title, initial, answer] = FourFields(text);
  place.program.desktop.ExpectInputBox(prompt, title, initial, answer);
}

void ExpectMsgBox(const Place& place, const std::string& text) {
  const auto [prompt, flags, title, answer] = FourFields(text);
  place.program.desktop.ExpectMsgBox(prompt, std::stoi(flags), title, std::stoi(answer));
}

void ExpectForm(const Place& place, const std::string& name, const std::string& lines) {
  place.program.desktop.OnModal<Form>([&program = place.program, name, lines](Form& form) {
    EXPECT_EQ(form.Name(), name);
    Play({program, form}, lines);
  });
}

using Text = const std::string&;

const std::map<std::string_view, void (*)(const Place& place, Text text)> kVerbs = {
    {"ask", ExpectInputBox},
    {"msgbox", ExpectMsgBox},
    {"colour", [](const Place& at, Text x) { at.program.desktop.ExpectColour(ColourNamed(x)); }},
    {"click", Click},
    {"press", Click},
    {"type", Type},
    {"tab", [](const Place& at, Text) { at.program.Pane().Type("\t"); }},
    {"drop", Drop},
    {"symbol", [](const Place& at, Text x) { at.program.app.gBlockCommentSymbol = x; }},
    {"sizes", [](const Place& at, Text) { at.program.app.gIncludeHeightWidth = true; }},
    {"no-undo", [](const Place&, Text) {}},  // For the whole case: RunCase looks for it.
    {"paste", Edit},
    {"edit", Edit},
    {"choose", Choose},
    {"check", [](const Place& at, Text x) { Named<CheckBox>(at, x).Click(); }},
    {"option", [](const Place& at, Text x) { Named<OptionButton>(at, x).Click(); }},
    {"slide", Slide},
    {"cell", SelectCell},
    {"enter", [](const Place& at, Text x) { Named<TextBox>(at, x).UserKeyPress('\r'); }},
    {"close", [](const Place& at, Text) { at.form.UserClose(); }},
};

void Act(const Place& place, const std::string& name, const std::string& text) {
  const auto verb = kVerbs.find(name);
  if (verb == kVerbs.end()) throw std::invalid_argument("no such action: " + name);
  EXPECT_TRUE(place.form.IsLoaded()) << "closed before: " << name << " " << text;
  verb->second(place, WithLineBreaks(text));
}

void Play(const Place& place, const std::string& lines) {
  std::istringstream in(lines);
  for (std::string line; std::getline(in, line);) {
    const auto [verb, text] = Cut(line, ' ');
    verb == "form" ? ExpectForm(place, text, LinesOfForm(in)) : Act(place, verb, text);
  }
}

// --- Cases ---

std::string ReadAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

void RunCase(const fs::path& folder, const std::function<void(RunningProgram&)>& prepare) {
  RunningProgram program;
  prepare(program);
  program.Begin();
  RichTextBox& pane = program.form.txtEdit;
  program.Put(ReadAll(folder / "before"));
  pane.EmptyUndoHistory();
  const std::string before = pane.Text();
  program.desktop.clipboard.text = "kept ✂";

  const std::string command = ReadAll(folder / "command");
  Play({program, program.form}, command);

  const std::string after = pane.Text();
  EXPECT_EQ(program.Shown(), ReadAll(folder / "after"));
  EXPECT_EQ(program.desktop.clipboard.text, "kept ✂");
  program.Pane().Undo();
  EXPECT_EQ(pane.Text(), command.starts_with("no-undo\n") ? after : before);
}

}  // namespace

void RunGoldenFolders(const fs::path& golden, const std::function<void(RunningProgram&)>& prepare) {
  for (const auto& folder : fs::directory_iterator(golden)) {
    SCOPED_TRACE(folder.path().filename());
    RunCase(folder, prepare);
  }
}

}  // namespace tagsmith
