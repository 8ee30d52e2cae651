// The large document, in the real window: what a command costs, and what the bare component costs
// for a keystroke at the same place.

#include <Qsci/qscilexerhtml.h>
#include <Qsci/qsciscintilla.h>
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPrinter>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "RunningProgram.h"
#include "core/EditingCommands.h"
#include "core/general1.h"
#include "services/Lines.h"
#include "services/desktop/system/QtPrinter.h"

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

// The bare component with HTML colours and line numbers, in a window of its own.
class BarePane {
 public:
  BarePane() {
    pane_.setUtf8(true);
    pane_.setLexer(new QsciLexerHTML(&pane_));
    pane_.setMarginType(0, QsciScintilla::NumberMargin);
    pane_.resize(449, 306);
    pane_.show();
    Program::Paint();
  }

  QsciScintilla* operator->() { return &pane_; }

  void SetText(const std::string& text) {
    pane_.SendScintilla(QsciScintilla::SCI_CLEARALL);
    pane_.SendScintilla(QsciScintilla::SCI_ADDTEXT, text.size(), text.data());
  }

  void PressKey() {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&pane_, &press);
  }

 private:
  QsciScintilla pane_;
};

// A page of this size in a file; its host path.
std::string PageFile(std::size_t size) {
  const std::string path = TheProgram().FilePath("page.html").toStdString();
  std::ofstream(path, std::ios::binary) << Page(size);
  return path;
}

void Load(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  const std::string path =
      DriveMap::ToSystemPath(PageFile(static_cast<std::size_t>(state.range(0))));
  for (auto _ : state) {
    form.LoadText(path);
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void LoadBare(benchmark::State& state) {
  BarePane pane;
  const std::string path = PageFile(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    std::ifstream file(path, std::ios::binary);
    pane.SetText({std::istreambuf_iterator<char>(file), {}});
    pane->SendScintilla(QsciScintilla::SCI_EMPTYUNDOBUFFER);
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void TagAtTheEnd(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  form.ReplaceDocument(Page(static_cast<std::size_t>(state.range(0))));
  form.txtEdit.SetSelStart(form.txtEdit.TextLength());
  Program::Paint();
  for (auto _ : state) {
    form.Get<CommandButton>("cmdBold").Click();
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

// A plain keystroke.
void TagAtTheEndBare(benchmark::State& state) {
  BarePane pane;
  pane.SetText(Page(static_cast<std::size_t>(state.range(0))));
  pane->SendScintilla(QsciScintilla::SCI_DOCUMENTEND);
  Program::Paint();
  for (auto _ : state) {
    pane.PressKey();
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void BlockComment(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
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

// The whole text replaced at once, the caret put at its end.
void BlockCommentBare(benchmark::State& state) {
  BarePane pane;
  const std::string text = Lines(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    pane.SetText(text);
    Program::Paint();
    state.ResumeTiming();
    pane->SendScintilla(QsciScintilla::SCI_TARGETWHOLEDOCUMENT);
    pane->SendScintilla(QsciScintilla::SCI_REPLACETARGET, text.size(), text.data());
    pane->SendScintilla(QsciScintilla::SCI_DOCUMENTEND);
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void GotoLastLine(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  const std::string page = Page(static_cast<std::size_t>(state.range(0)));
  const auto lastLine = static_cast<double>(CountLineEnds(page) + 1);
  for (auto _ : state) {
    state.PauseTiming();
    form.ReplaceDocument(page);
    form.txtEdit.SetSelStart(0);
    Program::Paint();
    state.ResumeTiming();
    form.Editing().GotoLine(lastLine);
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

void GotoLastLineBare(benchmark::State& state) {
  BarePane pane;
  const std::string page = Page(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    pane.SetText(page);
    pane->SendScintilla(QsciScintilla::SCI_GOTOPOS, 0);
    Program::Paint();
    state.ResumeTiming();
    pane->SendScintilla(QsciScintilla::SCI_GOTOLINE, CountLineEnds(page));
    Program::Paint();
  }
  state.SetComplexityN(state.range(0));
}

// About 200 pages of A4 to a PDF file.
void Print(benchmark::State& state) {
  Program& program = TheProgram();
  program.Form().ReplaceDocument(Lines(static_cast<std::size_t>(state.range(0))));
  dynamic_cast<QtPrinter&>(program.App().platform.printer)
      .Device()
      .setOutputFileName(program.FilePath("printed.pdf"));
  for (auto _ : state) {
    PrintRichText(program.Form().txtEdit, kTwipsPerInch, kTwipsPerInch, kTwipsPerInch,
                  kTwipsPerInch);
  }
  state.SetComplexityN(state.range(0));
}

// The component's own page formatting, straight to the printer.
void PrintBare(benchmark::State& state) {
  BarePane pane;
  pane.SetText(Lines(static_cast<std::size_t>(state.range(0))));
  for (auto _ : state) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFileName(TheProgram().FilePath("printed.pdf"));
    printer.setPageMargins(QMarginsF(1, 1, 1, 1), QPageLayout::Inch);
    QPainter painter(&printer);
    const QRect area(QPoint(), printer.pageLayout().paintRectPixels(printer.resolution()).size());
    const long length = pane->SendScintilla(QsciScintilla::SCI_GETLENGTH);
    for (long next = 0;;) {
      next = pane->SendScintilla(QsciScintilla::SCI_FORMATRANGE, 1UL, &painter, area, next, length);
      if (next >= length) break;
      printer.newPage();
    }
  }
  state.SetComplexityN(state.range(0));
}

void AddSizes(benchmark::internal::Benchmark* benchmark, int64_t largest) {
  benchmark->Arg(largest / 4)->Arg(largest / 2)->Arg(largest);
  benchmark->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

void Pages(benchmark::internal::Benchmark* benchmark) { AddSizes(benchmark, kLargestDocument); }
void ManyLines(benchmark::internal::Benchmark* benchmark) { AddSizes(benchmark, 20'000); }
void PrintedLines(benchmark::internal::Benchmark* benchmark) { AddSizes(benchmark, 11'000); }

BENCHMARK(Load)->Apply(Pages);
BENCHMARK(LoadBare)->Apply(Pages);
BENCHMARK(TagAtTheEnd)->Apply(Pages);
BENCHMARK(TagAtTheEndBare)->Apply(Pages);
BENCHMARK(BlockComment)->Apply(ManyLines);
BENCHMARK(BlockCommentBare)->Apply(ManyLines);
BENCHMARK(GotoLastLine)->Apply(Pages);
BENCHMARK(GotoLastLineBare)->Apply(Pages);
BENCHMARK(Print)->Apply(PrintedLines);
BENCHMARK(PrintBare)->Apply(PrintedLines);

}  // namespace
}  // namespace tagsmith::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
