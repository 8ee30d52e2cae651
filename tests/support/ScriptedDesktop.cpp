#include "support/ScriptedDesktop.h"

#include "services/RichTextBox.h"
#include "support/PlainTextPane.h"

namespace tagsmith {
namespace {

class SizedPicture : public Picture {
 public:
  explicit SizedPicture(std::pair<int, int> size) : size_(std::move(size)) {}
  int WidthInPixels() const override { return size_.first; }
  int HeightInPixels() const override { return size_.second; }

 private:
  std::pair<int, int> size_;
};

}  // namespace

// --- Windows ---

class ScriptedDesktop::ScriptedFormView : public FormView {
 public:
  ScriptedFormView(ScriptedDesktop& desktop, Form& form) : desktop_(desktop), form_(form) {}

  void Show() override { Log("Show"); }
  void RunModal(Form* /*owner*/) override {
    Log("RunModal");
    const auto act = desktop_.Answer<std::function<void(Form&)>>("a modal form", {});
    if (act) act(form_);
    if (!form_.IsVisible()) return;
    if (act) ADD_FAILURE() << form_.Name() << " was left open";
    form_.Unload();
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

std::unique_ptr<FormView> ScriptedDesktop::MakeFormView(Form& form) {
  return std::make_unique<ScriptedFormView>(*this, form);
}

std::unique_ptr<TextPane> ScriptedDesktop::MakeTextPane() {
  return std::make_unique<PlainTextPane>(clipboard);
}

// --- Questions ---

std::string ScriptedDesktop::Question(std::string kind,
                                      std::initializer_list<std::string_view> texts) {
  for (const std::string_view text : texts) kind.append(" \"").append(text).append("\"");
  return kind;
}

// --- Keys, events, pictures ---

void ScriptedDesktop::SendKeys(std::string_view keys) {
  const Form* active = platform.forms.Active();
  auto* box = active == nullptr ? nullptr : dynamic_cast<RichTextBox*>(active->ActiveControl());
  if (box != nullptr) dynamic_cast<PlainTextPane&>(box->Pane()).PressKeys(keys);
}

std::shared_ptr<const Picture> ScriptedDesktop::LoadPicture(std::string_view path) {
  const auto found = pictures_.find(path);
  if (found == pictures_.end()) throw Error(ErrorCode::kFileNotFound, "Invalid picture");
  return std::make_shared<SizedPicture>(found->second);
}

}  // namespace tagsmith
