// Search and replace: the search alone, the replacing alone, and Replace All in the real window,
// from the click to the paint.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <string>

#include "RunningProgram.h"
#include "services/TextSearch.h"
#include "sitetools/ReplaceText.h"
#include "sitetools/frmFind.h"

namespace tagsmith::bench {
namespace {

constexpr std::size_t kLargestDocument = 999'999;
constexpr int kMostMatches = 100'000;

// A page of ordinary lines with characters outside ASCII in it, `matches` times "Hit", which it
// ends with.
std::string Page(int matches) {
  std::string page;
  for (int i = 0; i < matches; ++i) page += i % 10 == 0 ? "\r\n<I>Hit" : "<B>Hit";
  std::string lines;
  while (lines.size() + page.size() < kLargestDocument) {
    lines +=
        "<P Class=\"text\">Stra\xC3\x9F"
        "e und <B>Weg</B></P>\r\n";
  }
  lines.resize(kLargestDocument - page.size(), ' ');
  return lines + page;
}

void SearchWithoutAMatch(benchmark::State& state, const std::string& pattern) {
  const std::string page = Page(0);
  const TextSearch search(pattern);
  for (auto _ : state) benchmark::DoNotOptimize(search.Find(page));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(page.size()));
}

void SearchForAllMatches(benchmark::State& state) {
  const std::string page = Page(static_cast<int>(state.range(0)));
  const TextSearch search("hit");
  for (auto _ : state) {
    std::int64_t count = 0;
    for (auto match = search.Find(page); match; match = search.Find(page, match->start + 1)) {
      ++count;
    }
    if (count != state.range(0)) state.SkipWithError("matches are missing");
  }
  state.SetComplexityN(state.range(0));
}

void ReplaceAllInAText(benchmark::State& state) {
  const std::string page = Page(static_cast<int>(state.range(0)));
  const TextSearch search("hit");
  for (auto _ : state) {
    benchmark::DoNotOptimize(sitetools::ReplaceAll(page, search, "match"));
  }
  state.SetComplexityN(state.range(0));
}

void ReplaceInAFile(benchmark::State& state) {
  const std::string page = Page(static_cast<int>(state.range(0)));
  const TextSearch search("hit");
  for (auto _ : state) {
    benchmark::DoNotOptimize(sitetools::ReplaceInFile(page, search, "match"));
  }
  state.SetComplexityN(state.range(0));
}

void ReplaceAllInTheWindow(benchmark::State& state) {
  frmMain& form = TheProgram().Form();
  const std::string page = Page(static_cast<int>(state.range(0)));
  form.mnuReplace.Click();
  auto& dialog = TheProgram().App().Instance<sitetools::frmFind>();
  dialog.txtFind.SetText("hit");
  dialog.txtReplace.SetText("match");
  for (auto _ : state) {
    state.PauseTiming();
    form.ReplaceDocument(page);
    form.txtEdit.SetSelStart(0);
    dialog.cmdCommand(1).SetFocus();
    Program::Paint();
    state.ResumeTiming();
    dialog.cmdCommand(3).Click();
    Program::Paint();
  }
  dialog.Unload();
  state.SetComplexityN(state.range(0));
}

BENCHMARK_CAPTURE(SearchWithoutAMatch, RareLetter, "Quelle")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SearchWithoutAMatch, CommonLetters, "Testen")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(SearchWithoutAMatch, TagWithAnAttribute, "<P Class=\"texts\"")
    ->Unit(benchmark::kMicrosecond);

void Matches(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(kMostMatches / 4)->Arg(kMostMatches / 2)->Arg(kMostMatches);
  benchmark->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(SearchForAllMatches)->Apply(Matches);
BENCHMARK(ReplaceAllInAText)->Apply(Matches);
BENCHMARK(ReplaceInAFile)->Apply(Matches);
BENCHMARK(ReplaceAllInTheWindow)->Apply(Matches);

}  // namespace
}  // namespace tagsmith::bench

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
