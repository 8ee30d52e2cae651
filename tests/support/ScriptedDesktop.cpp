#include "support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include "services/RichTextBox.h"
#include "support/PlainTextPane.h"

namespace tagsmith {
namespace {

std::string Quoted(std::string_view text) { return std::string(" \"").append(text).append("\""); }

std::string MsgBoxQuestion(std::string_view prompt, int flags, std::string_view title) {
  return "message box" + Quoted(prompt) + " " + std::to_string(flags) + Quoted(title);
}

std::string InputBoxQuestion(std::string_view prompt, std::string_view title,
                             std::string_view initial) {
  return "input box" + Quoted(prompt) + Quoted(title) + Quoted(initial);
}

class SizedPicture : public Picture {
 public:
  explicit SizedPicture(std::pair<int, int> size) : size_(std::move(size)) {}
  int WidthInPixels() const override { return size_.first; }
  int HeightInPixels() const override { return size_.second; }

 private:
  std::pair<int, int> size_;
};

}  // namespace

std::string MemorySettings::GetSetting(std::string_view application, std::string_view section,
                                       std::string_view key, std::string_view fallback) const {
  EXPECT_EQ(application, kApplicationTitle);
  const auto found = values.find(std::string(section).append("/").append(key));
  return found == values.end() ? std::string(fallback) : found->second;
}

void MemorySettings::SaveSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view value) {
  EXPECT_EQ(application, kApplicationTitle);
  values[std::string(section).append("/").append(key)] = value;
}

// --- Windows ---

class ScriptedDesktop::ScriptedFormView : public FormView {
 public:
  ScriptedFormView(ScriptedDesktop& desktop, Form& form) : desktop_(desktop), form_(form) {}

  void Show() override { Log("Show"); }
  void RunModal(Form* /*owner*/) override {
    Log("RunModal");
    desktop_.RunModal(form_);
  }
  void Close() override { Log("Close"); }
  void BringToFront() override { Log("BringToFront"); }
  void RepaintNow() override { Log("RepaintNow"); }
  void Changed(Property) override {}
  void ControlsChanged() override {}

 private:
  void Log(const char* what) { desktop_.windowLog.push_back(what + (" " + form_.Name())); }

  ScriptedDesktop& desktop_;
  Form& form_;
};

ScriptedDesktop::ScriptedDesktop(WindowSystem* windows)
    : platform{.windows = windows != nullptr ? *windows : *this,
               .dialogs = *this,
               .clipboard = clipboard,
               .keyboard = *this,
               .events = *this,
               .files = files,
               .settings = settings,
               .pictures = *this,
               .calendar = calendar,
               .rtf = rtf,
               .printer = printer,
               .shell = shell,
               .registry = registry,
               .dictionary = dictionary,
               .applicationPath = "c:\\tagsmith",
               .commandTail = {}} {
  files.AddDirectory("c:\\tagsmith");
}

void ScriptedRtfConversion::ScroogeConvertFile(std::string_view from, std::string_view to,
                                               int reserved3, std::string_view program,
                                               std::string_view reserved5,
                                               std::string_view reserved6,
                                               std::string_view fontName, int reserved8) {
  calls.push_back({std::string(from),
                   std::string(to),
                   {std::string(program), std::string(reserved5), std::string(reserved6),
                    std::string(fontName)},
                   reserved3,
                   reserved8});
  if (calls.size() == failingCall) throw Error(ErrorCode::kOther, "Not in Rich Text Format");
  files_.WriteFile(to, "<I>" + std::string(from) + "</I>", Durability::kWritten);
}

ScriptedDesktop::~ScriptedDesktop() {
  for (const Step& step : steps_) ADD_FAILURE() << "never asked: " << step.question;
}

std::unique_ptr<FormView> ScriptedDesktop::MakeFormView(Form& form) {
  return std::make_unique<ScriptedFormView>(*this, form);
}

std::unique_ptr<TextPane> ScriptedDesktop::MakeTextPane() {
  return std::make_unique<PlainTextPane>(clipboard);
}

void ScriptedDesktop::RunModal(Form& form) {
  auto act = Answer<std::function<void(Form&)>>("a modal form", {});
  if (act) act(form);
  if (!form.IsVisible()) return;
  if (act) ADD_FAILURE() << form.Name() << " was left open";
  form.Unload();
}

// --- Questions ---

void ScriptedDesktop::NotExpected(const std::string& question) {
  ADD_FAILURE() << "not expected: " << question;
}

std::any ScriptedDesktop::Ask(const std::string& question) {
  if (steps_.empty() || steps_.front().question != question) {
    NotExpected(question + (steps_.empty() ? "" : ", but " + steps_.front().question));
    return {};
  }
  std::any answer = std::move(steps_.front().answer);
  steps_.pop_front();
  return answer;
}

void ScriptedDesktop::ExpectMsgBox(std::string_view prompt, int flags, std::string_view title,
                                   int answer) {
  Expect(MsgBoxQuestion(prompt, flags, title), answer);
}

void ScriptedDesktop::ExpectInputBox(std::string_view prompt, std::string_view title,
                                     std::string_view initial, std::string_view answer) {
  Expect(InputBoxQuestion(prompt, title, initial), std::string(answer));
}

int ScriptedDesktop::MsgBox(Form& /*owner*/, std::string_view prompt, int flags,
                            std::string_view title) {
  return Answer(MsgBoxQuestion(prompt, flags, title), kCancel);
}

std::string ScriptedDesktop::InputBox(Form& /*owner*/, std::string_view prompt,
                                      std::string_view title, std::string_view initial) {
  return Answer(InputBoxQuestion(prompt, title, initial), std::string());
}

// --- Keys, events, pictures ---

void ScriptedDesktop::SendKeys(std::string_view keys) {
  const Form* active = platform.forms.Active();
  auto* box = active == nullptr ? nullptr : dynamic_cast<RichTextBox*>(active->ActiveControl());
  if (box != nullptr) dynamic_cast<PlainTextPane&>(box->Pane()).PressKeys(keys);
}

void ScriptedDesktop::AddPicture(std::string_view path, int width, int height) {
  files.AddFile(path, "picture");
  pictures_[std::string(path)] = {width, height};
}

std::shared_ptr<const Picture> ScriptedDesktop::LoadPicture(std::string_view path) {
  const auto found = pictures_.find(path);
  if (found == pictures_.end()) throw Error(ErrorCode::kFileNotFound, "Invalid picture");
  return std::make_shared<SizedPicture>(found->second);
}

}  // namespace tagsmith
