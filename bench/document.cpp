// The large document, in the real window: what a command costs, and what the bare component costs
// for a keystroke at the same place.

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <fstream>
#include <memory>
#include <string>

#include "app/Composition.h"
#include "core/EditingCommands.h"
#include "services/desktop/editpane/QtTextPane.h"

namespace tagsmith::bench {
namespace {

constexpr std::size_t kLargestDocument = 999'999;

// A page of ordinary lines with characters outside ASCII in it.
std::string Page(std::size_t size) {
  std::string page;
  while (page.size() < size) {
    page += "<P Id=\"line" + std::to_string(page.size()) +
            "\">Stra\xC3\x9F"
            "e und <B>Weg</B></P>\r\n";
  }
  page.resize(size, 'x');
  return page;
}

// Lines, `count` of them.
std::string Lines(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += "  call(" + std::to_string(i) + ");\r\n";
  return text;
}

// The running program, its window on the (virtual) screen, its settings in a folder of its own.
class Program {
 public:
  Program() : composition_(1, kArguments, folder_.filePath("settings.json").toStdString()) {
    composition_.Start();
    QApplication::processEvents();
  }

  frmMain& Form() { return composition_.MainForm(); }
  QString FilePath(const char* name) const { return folder_.filePath(name); }

  static void Paint() { QApplication::processEvents(); }

 private:
  static constexpr const char* kArguments[] = {"tagsmith"};

  QTemporaryDir folder_;
  Composition composition_;
};

Program& TheProgram() {
  static Program program;
  return program;
}

void LoadAndPaint(benchmark::State& state) {
  Program& program = TheProgram();
  const auto size = static_cast<std::size_t>(state.range(0));
  const std::string hostPath = program.FilePath("page.html").toStdString();
  std::ofstream(hostPath, std::ios::binary) << Page(size);
  const std::string path = DriveMap::ToSystemPath(hostPath);
  for (auto _ : state) {
    program.Form().LoadText(path);
    Program::Paint();
  }
  state.SetBytesProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
}

void TagAtTheEnd(benchmark::State& state) {
  Program& program = TheProgram();
  frmMain& form = program.Form();
  form.ReplaceDocument(Page(static_cast<std::size_t>(state.range(0))));
  form.txtEdit.SetSelStart(form.txtEdit.TextLength());
  Program::Paint();
  for (auto _ : state) {
    form.Get<CommandButton>("cmdBold").Click();
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void BareKeystrokeAtTheEnd(benchmark::State& state) {
  QsciScintilla pane;
  pane.setUtf8(true);
  pane.setLexer(new QsciLexerHTML(&pane));
  pane.setMarginType(0, QsciScintilla::NumberMargin);
  pane.setText(QString::fromStdString(Page(static_cast<std::size_t>(state.range(0)))));
  pane.resize(449, 306);
  pane.show();
  pane.SendScintilla(QsciScintilla::SCI_DOCUMENTEND);
  Program::Paint();
  for (auto _ : state) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&pane, &press);
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void BlockComment(benchmark::State& state) {
  Program& program = TheProgram();
  frmMain& form = program.Form();
  const std::string text = Lines(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    form.ReplaceDocument(text);
    form.txtEdit.Pane().Select(0, text.size());
    Program::Paint();
    state.ResumeTiming();
    form.cmdCommentBlock.Click();
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void GotoLastLine(benchmark::State& state) {
  Program& program = TheProgram();
  frmMain& form = program.Form();
  const auto lines = static_cast<std::size_t>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    form.ReplaceDocument(Lines(lines));
    form.txtEdit.SetSelStart(0);
    Program::Paint();
    state.ResumeTiming();
    form.Editing().GotoLine(static_cast<double>(lines + 1));
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

BENCHMARK(LoadAndPaint)
    ->Arg(kLargestDocument / 4)
    ->Arg(kLargestDocument / 2)
    ->Arg(kLargestDocument)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(TagAtTheEnd)
    ->Arg(kLargestDocument / 4)
    ->Arg(kLargestDocument / 2)
    ->Arg(kLargestDocument)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BareKeystrokeAtTheEnd)
    ->Arg(kLargestDocument / 4)
    ->Arg(kLargestDocument / 2)
    ->Arg(kLargestDocument)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BlockComment)
    ->Arg(5'000)
    ->Arg(10'000)
    ->Arg(20'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(GotoLastLine)
    ->Arg(5'000)
    ->Arg(10'000)
    ->Arg(20'000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace tagsmith::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
