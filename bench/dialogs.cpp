// The tag dialogs in real windows: from the click on a button to the dialog's paint, and what it
// costs to put a large result into the text.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <string>

#include "RunningProgram.h"
#include "dialogs/TableBlock.h"
#include "services/FormPool.h"

namespace tagsmith::bench {
namespace {

using Clock = std::chrono::steady_clock;

// While it lives: notes when the window of that name has painted itself whole, and closes it then.
class CloseWhenPainted : public QObject {
 public:
  explicit CloseWhenPainted(QString windowName) : windowName_(std::move(windowName)) {
    qApp->installEventFilter(this);
  }

  Clock::time_point PaintedAt() const { return paintedAt_; }

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::Paint || !receiver->isWidgetType() || painted_) return false;
    painted_ = static_cast<QWidget*>(receiver)->window()->objectName() == windowName_;
    // The children are painted within the same event.
    if (painted_) QTimer::singleShot(0, this, [this] { Close(); });
    return false;
  }

 private:
  void Close() {
    paintedAt_ = Clock::now();
    TheProgram().App().platform.forms.Active()->UserClose();
  }

  QString windowName_;
  bool painted_ = false;
  Clock::time_point paintedAt_;
};

void OpenDialog(benchmark::State& state, const char* button, const char* window) {
  TheProgram().Form().MarkUnchanged();  // A dialog that makes a page would ask first.
  auto& command = TheProgram().Form().Get<CommandButton>(button);
  for (auto _ : state) {
    const CloseWhenPainted watch(window);
    const Clock::time_point start = Clock::now();
    command.Click();
    state.SetIterationTime(std::chrono::duration<double>(watch.PaintedAt() - start).count());
    Program::Paint();
  }
}

// A comment dialog that starts with that many lines.
void OpenCommentOnLines(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  std::string text;
  for (int i = 0; i < state.range(0); ++i) text += "<LI>Z\xC3\xBCrich\r\n";
  form.ReplaceDocument(text);
  form.txtEdit.Pane().Select(0, text.size());
  OpenDialog(state, "cmdComment", "frmComment");
  form.ReplaceDocument("");
}

void InsertTable(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  dialogs::CellTexts cells;
  dialogs::TableFields fields;
  fields.rows = fields.columns = static_cast<int>(state.range(0));
  for (int row = 0; row < fields.rows; ++row) {
    for (int column = 0; column < fields.columns; ++column) cells.Set(row, column, "Z\xC3\xBCrich");
  }
  for (auto _ : state) {
    state.PauseTiming();
    form.ReplaceDocument("");
    Program::Paint();
    state.ResumeTiming();
    form.InsertText(TableBlock(fields, cells));
    Program::Paint();
  }
}

struct DialogCase {
  const char* button;
  const char* window;
};

constexpr DialogCase kDialogs[] = {
    {"cmdFastColor", "frmColors"},
    {"cmdFastAnchor", "frmAnchor"},
    {"cmdFastList", "frmLists"},
    {"cmdFastImage", "frmImage"},
    {"cmdFastLine", "frmHR"},
    {"cmdFastTable", "frmTables"},
    {"cmdMarquee", "frmMarquee"},
    {"cmdComment", "frmComment"},
    {"cmdFrameDialog", "frmFrameDialog"},
    {"cmdEasyBegin", "frmJumpStart"},
};

void RegisterDialogs() {
  for (const DialogCase& dialog : kDialogs) {
    const std::string name = std::string("OpenDialog/") + dialog.window;
    benchmark::RegisterBenchmark(name.c_str(), OpenDialog, dialog.button, dialog.window)
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime();
  }
}

BENCHMARK(OpenCommentOnLines)
    ->Arg(1'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime();
BENCHMARK(InsertTable)->Arg(20)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tagsmith::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  tagsmith::bench::RegisterDialogs();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
