#pragma once

#include <gtest/gtest.h>

#include <any>
#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "services/Calendar.h"
#include "services/Clipboard.h"
#include "services/Dialogs.h"
#include "services/Dictionary.h"
#include "services/Error.h"
#include "services/EventQueue.h"
#include "services/Form.h"
#include "services/Keyboard.h"
#include "services/Pictures.h"
#include "services/Platform.h"
#include "services/Printer.h"
#include "services/Registry.h"
#include "services/RtfConversion.h"
#include "services/SettingsStore.h"
#include "services/Shell.h"
#include "services/WindowSystem.h"
#include "support/MemoryFiles.h"

namespace tagsmith {

/// The clipboard, with a switch that makes it impossible to open.
class MemoryClipboard : public Clipboard {
 public:
  std::string text;
  bool broken = false;
  /// The texts that were set, in order.
  std::vector<std::string> history;

  std::string GetText() const override {
    CheckOpen();
    return text;
  }
  void SetText(std::string_view newText) override {
    CheckOpen();
    history.emplace_back(text = newText);
  }
  void Clear() override {
    CheckOpen();
    text.clear();
  }

 private:
  void CheckOpen() const {
    if (broken) throw Error(ErrorCode::kOther, "Cannot open the clipboard");
  }
};

/// The settings, by "Section/Key".
class MemorySettings : public SettingsStore {
 public:
  std::map<std::string, std::string, std::less<>> values;

  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view fallback) const override {
    EXPECT_EQ(application, kApplicationTitle);
    const auto found = values.find(std::string(section).append("/").append(key));
    return found == values.end() ? std::string(fallback) : found->second;
  }
  void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                   std::string_view value) override {
    EXPECT_EQ(application, kApplicationTitle);
    values[std::string(section).append("/").append(key)] = value;
  }
};

/// A clock that stands still, and date forms that name themselves.
class FixedCalendar : public Calendar {
 public:
  LocalTime Now() const override { return {2003, 9, 4, 15, 6, 7}; }
  std::string LongDate(const LocalTime& time) const override { return Text("läng", time); }
  std::string MediumDate(const LocalTime& time) const override { return Text("medium", time); }
  std::string ShortDate(const LocalTime& time) const override { return Text("short", time); }
  std::string GeneralDate(const LocalTime& time) const override { return Text("general", time); }

 private:
  static std::string Text(const char* form, const LocalTime& time) {
    return std::string(form) + " " + std::to_string(time.day) + "." + std::to_string(time.month) +
           "." + std::to_string(time.year);
  }
};

/// Notes the calls; a page is the name of its file in an <I> element.
class ScriptedRtfConversion : public RtfConversion {
 public:
  explicit ScriptedRtfConversion(FileSystem& files) : files_(files) {}

  struct Call {
    std::string from;
    std::string to;
    std::vector<std::string> texts;  ///< Places 4 to 7.
    int third = 0;
    int eighth = 0;
  };
  std::vector<Call> calls;
  /// The call with that count, from 1, fails; 0 for none.
  std::size_t failingCall = 0;

  void ScroogeConvertFile(std::string_view from, std::string_view to, int reserved3,
                          std::string_view program, std::string_view reserved5,
                          std::string_view reserved6, std::string_view fontName,
                          int reserved8) override {
    const auto texts = {program, reserved5, reserved6, fontName};
    calls.push_back(
        {std::string(from), std::string(to), {texts.begin(), texts.end()}, reserved3, reserved8});
    if (calls.size() == failingCall) throw Error(ErrorCode::kOther, "Not in Rich Text Format");
    files_.WriteFile(to, "<I>" + std::string(from) + "</I>", Durability::kWritten);
  }

 private:
  FileSystem& files_;
};

/// Letter paper, a quarter of an inch of which cannot be printed on, and the log of the job.
class ScriptedPrinter : public Printer {
 public:
  std::vector<std::string> log;
  /// The call of that name fails; empty for none.
  std::string failingCall;

  Twips Width() const override { return 12240; }
  Twips Height() const override { return 15840; }
  Twips ScaleWidth() const override { return 11520; }
  Twips ScaleHeight() const override { return 15120; }
  Twips OffsetX() const override { return 360; }
  Twips OffsetY() const override { return 360; }
  void StartDoc() override { Call("StartDoc"); }
  DeviceContext& Context() override { return context_; }
  void NewPage() override { Call("NewPage"); }
  void EndDoc() override { Call("EndDoc"); }

 private:
  void Call(const std::string& name) {
    if (name == failingCall) throw Error(ErrorCode::kOther, "The printer is on fire");
    log.push_back(name);
  }

  DeviceContext context_;
};

/// Notes the command lines.
class ScriptedShell : public Shell {
 public:
  std::vector<std::string> started;
  /// What a start fails with; empty for none.
  std::string failure;

  void Start(std::string_view commandLine) override {
    if (!failure.empty()) throw Error(ErrorCode::kOther, failure);
    started.emplace_back(commandLine);
  }
};

/// Notes what is offered, as "type: name".
class ScriptedRegistry : public Registry {
 public:
  std::vector<std::string> offered;
  std::optional<std::string> tool;
  /// What a write fails with; empty for none.
  std::string failure;

  void OfferFor(std::string_view mimeType, std::string_view entryName) override {
    if (!failure.empty()) throw Error(ErrorCode::kPermissionDenied, failure);
    offered.push_back(std::string(mimeType) + ": " + std::string(entryName));
  }
  std::optional<std::string> SystemInformationTool() const override { return tool; }
};

/// A dictionary of the words that the test lays down.
class ScriptedDictionary : public Dictionary {
 public:
  std::set<std::string, std::less<>> words;
  std::map<std::string, std::vector<std::string>, std::less<>> suggestions;
  /// What was looked up and learnt, in order.
  std::vector<std::string> asked;
  std::vector<std::string> learnt;
  /// What each call fails with; empty for none.
  std::string failure;
  std::string ownWordsError;

  std::string Name() override { return "en_US"; }
  bool Knows(std::string_view word) override {
    asked.emplace_back(word);
    if (!failure.empty()) throw Error(ErrorCode::kFileNotFound, failure);
    return words.contains(word);
  }
  std::vector<std::string> Suggest(std::string_view word) override {
    return suggestions[std::string(word)];
  }
  void Learn(std::string_view word) override {
    words.emplace(word);
    learnt.emplace_back(word);
    if (!failure.empty()) throw Error(ErrorCode::kPermissionDenied, failure);
  }
  void RaiseOwnWordsError() override {
    if (ownWordsError.empty()) return;
    throw Error(ErrorCode::kPermissionDenied, std::exchange(ownWordsError, {}));
  }
};

/// A desktop without a screen. The test lays down the answers to the questions that will be asked,
/// in their order; a question that was not expected, and an answer that was not used, fail the
/// test. Modal forms are questions too: their answer is a function that acts as the user.
class ScriptedDesktop : private WindowSystem,
                        private Dialogs,
                        private Keyboard,
                        private EventQueue,
                        private PictureLoader {
 public:
  /// `windows` are real ones, where the test has them.
  explicit ScriptedDesktop(WindowSystem* windows = nullptr);
  ~ScriptedDesktop() override {
    for (const Step& step : steps_) ADD_FAILURE() << "never asked: " << step.question;
  }

  MemoryFiles files;
  MemorySettings settings;
  MemoryClipboard clipboard;
  FixedCalendar calendar;
  ScriptedRtfConversion rtf{files};
  ScriptedPrinter printer;
  ScriptedShell shell;
  ScriptedRegistry registry;
  ScriptedDictionary dictionary;
  /// The program's own folder is "c:\tagsmith"; the command tail is empty. Both may be rewritten
  /// before the application starts.
  Platform platform;

  // --- Answers ---

  void ExpectMsgBox(std::string_view prompt, int flags, std::string_view title, int answer = kOk) {
    Expect(Question("message box", {prompt, std::to_string(flags), title}), answer);
  }
  void ExpectInputBox(std::string_view prompt, std::string_view title, std::string_view initial,
                      std::string_view answer) {
    Expect(Question("input box", {prompt, title, initial}), std::string(answer));
  }
  /// An empty optional is Cancel.
  void ExpectOpenFile(std::optional<std::string> path) { Expect("open file", std::move(path)); }
  void ExpectSaveFile(std::optional<std::string> path) { Expect("save file", std::move(path)); }
  void ExpectColour(std::optional<Colour> colour) { Expect("colour", colour); }
  void ExpectFont(std::optional<FontSpec> font) { Expect("font", std::move(font)); }
  /// The print dialog; false is Cancel.
  void ExpectPrinter(bool offerSelection, bool chosen) {
    Expect(offerSelection ? "printer or selection" : "printer", chosen);
  }
  /// The form `T` will be shown modally: `act` is the user, and has to close it.
  template <class T>
  void OnModal(std::function<void(T&)> act) {
    Expect("a modal form", std::function<void(Form&)>([act = std::move(act)](Form& form) {
             auto* expected = dynamic_cast<T*>(&form);
             ASSERT_NE(expected, nullptr) << "not expected: the modal form " << form.Name();
             act(*expected);
           }));
  }

  // --- Other things that the test lays down or looks up ---

  /// A picture file of that size, in pixels.
  void AddPicture(std::string_view path, int width, int height) {
    files.AddFile(path, "picture");
    pictures_[std::string(path)] = {width, height};
  }
  /// What happens when a long command yields to the event queue.
  std::function<void()> onDoEvents;
  /// Whether the program has been ended at once.
  bool programEnded = false;
  /// What the windows were told, in order: "Show frmMain", "RepaintNow frmSplash", ...
  std::vector<std::string> windowLog;

 private:
  class ScriptedFormView;

  struct Step {
    std::string question;
    std::any answer;
  };

  static std::string Question(std::string kind, std::initializer_list<std::string_view> texts);
  void Expect(std::string question, std::any answer) {
    steps_.push_back({std::move(question), std::move(answer)});
  }
  /// The answer to `question` if it is the next one expected; else `fallback`, and the test fails.
  template <class T>
  T Answer(const std::string& question, T fallback) {
    const std::string next = steps_.empty() ? "nothing" : steps_.front().question;
    EXPECT_EQ(question, next) << "not expected";
    if (question != next) return fallback;
    const std::any answer = std::move(steps_.front().answer);
    steps_.pop_front();
    return std::any_cast<T>(answer);
  }

  std::unique_ptr<FormView> MakeFormView(Form& form) override;
  std::unique_ptr<TextPane> MakeTextPane() override;
  int MsgBox(Form& /*owner*/, std::string_view prompt, int flags, std::string_view title) override {
    return Answer(Question("message box", {prompt, std::to_string(flags), title}), kCancel);
  }
  std::string InputBox(Form& /*owner*/, std::string_view prompt, std::string_view title,
                       std::string_view initial) override {
    return Answer(Question("input box", {prompt, title, initial}), std::string());
  }
  std::optional<std::string> OpenFile(Form& /*owner*/, const FileDialogRequest&) override {
    return Answer("open file", std::optional<std::string>());
  }
  std::optional<std::string> SaveFile(Form& /*owner*/, const FileDialogRequest&) override {
    return Answer("save file", std::optional<std::string>());
  }
  std::optional<Colour> PickColour(Form& /*owner*/, Colour /*start*/) override {
    return Answer("colour", std::optional<Colour>());
  }
  std::optional<FontSpec> PickFont(Form& /*owner*/, const FontSpec& /*start*/) override {
    return Answer("font", std::optional<FontSpec>());
  }
  bool PickPrinter(Form& /*owner*/, bool offerSelection) override {
    return Answer(offerSelection ? "printer or selection" : "printer", false);
  }
  void SendKeys(std::string_view keys) override;
  void DoEvents() override {
    if (onDoEvents) onDoEvents();
  }
  void EndProgram() override { programEnded = true; }
  std::shared_ptr<const Picture> LoadPicture(std::string_view path) override;

  std::deque<Step> steps_;
  std::map<std::string, std::pair<int, int>, std::less<>> pictures_;
};

}  // namespace tagsmith
