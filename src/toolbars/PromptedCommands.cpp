#include "toolbars/PromptedCommands.h"

#include <array>
#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/Template.h"
#include "core/frmMain.h"
#include "core/general1.h"
#include "services/Buttons.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::size_t kMostQuestions = 3;

struct Question {
  std::string_view prompt{};  ///< Empty for no question.
  std::string_view title{};   ///< Empty for the application's.
  std::string_view initial{};
};

/// A button that asks and then inserts a tag. `{1}` to `{3}` in the texts stand for the answers, a
/// line feed for a line break.
struct PromptedCommand {
  std::string_view control;
  std::array<Question, kMostQuestions> questions;
  std::string_view open;
  std::string_view close{};
  bool replacesSelection = false;  ///< Instead of surrounding it.
};

constexpr bool kReplaces = true;

constexpr PromptedCommand kCommands[] = {
    {"cmdFontColor", {{{"Color:", "Font Dialog", "Blue"}}}, R"(<FONT Color="{1}">)", "</FONT>"},
    {"cmdFontFace", {{{"Font:", "Font Dialog", "Arial"}}}, R"(<FONT Face="{1}">)", "</FONT>"},
    {"cmdFontUp", {}, R"(<FONT Size="+1">)", "</FONT>"},
    {"cmdFontDown", {}, R"(<FONT Size="-1">)", "</FONT>"},
    {"cmdForm",
     {{{"URL:"}, {"Method:", "Method Dialog", "GET"}, {"Name:"}}},
     R"(<FORM Action="{1}" Method="{2}" Name="{3}">)",
     "</FORM>"},
    {"cmdCSSLink",
     {{{"Href:"}, {"Title:"}}},
     "<LINK Rel=\"StyleSheet\" Type=\"text/css\" Href=\"{1}\" Title=\"{2}\">\n",
     "",
     kReplaces},
    {"cmdCSSImport", {{{"URL:"}}}, "@import URL(\"{1}\");\n", "", kReplaces},
    {"cmdDIVStyle", {}, R"(<DIV Style="">)", "</DIV>"},
};

/// A button that inserts an INPUT tag of a type, asking for its name and value.
struct InputControl {
  std::string_view control;
  std::string_view type;
};

constexpr InputControl kInputControls[] = {
    {"cmdButton", "Button"}, {"cmdTextbox", "Text"}, {"cmdPassword", "Password"},
    {"cmdHidden", "Hidden"}, {"cmdRadio", "Radio"},  {"cmdCheckBox", "Checkbox"},
};

std::string Answer(Application& application, const Question& question) {
  if (question.prompt.empty()) return {};
  const std::string title =
      question.title.empty() ? application.Title() : std::string(question.title);
  return application.InputBox(application.MainForm(), question.prompt, title, question.initial);
}

void Run(Application& application, const PromptedCommand& command) {
  std::array<std::string, kMostQuestions> answers;
  for (std::size_t i = 0; i < kMostQuestions; ++i) {
    answers[i] = Answer(application, command.questions[i]);
  }
  const std::string open =
      FillTemplate(command.open, {{"1", answers[0]}, {"2", answers[1]}, {"3", answers[2]}});
  frmMain& form = application.MainForm();
  command.replacesSelection ? form.InsertText(open) : form.InsertAround(open, command.close);
}

void InsertInputControl(Application& application, std::string_view type) {
  const std::string name = Answer(application, {"Name:"});
  const std::string value = Answer(application, {"Value:"});
  application.MainForm().InsertText(
      FillTemplate(R"(<INPUT Type="{type}" Name="{name}" Value="{value}"></INPUT>)",
                   {{"type", type}, {"name", name}, {"value", value}}));
}

void cmdFastMail_Click(Application& application) {
  const std::string answer =
      Answer(application, {"Please Enter The E-Mail Address Below", "E-Mail Dialog"});
  if (answer.empty()) return;
  application.MainForm().InsertAround(
      FillTemplate(R"(<A Href="MAILTO:{address}">)", {{"address", Trim(answer)}}), "</A>");
}

}  // namespace

void BindPromptedCommands(Application& application) {
  const frmMain& form = application.MainForm();
  for (const PromptedCommand& command : kCommands) {
    form.Get<CommandButton>(command.control).onClick = [&application, &command] {
      Run(application, command);
    };
  }
  for (const InputControl& input : kInputControls) {
    form.Get<CommandButton>(input.control).onClick = [&application, &input] {
      InsertInputControl(application, input.type);
    };
  }
  form.Get<CommandButton>("cmdFastMail").onClick = [&application] {
    cmdFastMail_Click(application);
  };
}

}  // namespace tagsmith::toolbars
