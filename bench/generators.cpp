// The generators: from a menu text to its page, and from a table to the pages of its site.

#include <benchmark/benchmark.h>

#include <string>

#include "generators/MenuPage.h"
#include "generators/PhpPages.h"

namespace tagsmith::bench {
namespace {

// A menu text of that many bytes, some twenty thousand topics to the million.
std::string Menu(std::size_t size) {
  std::string menu;
  while (menu.size() < size) menu += "Z\xC3\xBCrich|Weather|wetter.html|Maps|karten.html\r\n";
  menu.resize(size);
  return menu;
}

void MakeMenuPage(benchmark::State& state) {
  const std::string menu = Menu(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(generators::MenuPage(menu));
  state.SetComplexityN(state.range(0));
}

void MakePhpPages(benchmark::State& state) {
  std::string fields;
  for (int i = 0; i < state.range(0); ++i) fields += "Field" + std::to_string(i) + "|String|";
  for (auto _ : state) {
    const generators::PhpSite site{"dsn", "user", "password", "people",
                                   generators::SplitFields(fields)};
    for (const auto pages : {generators::AddPages, generators::UpdatePages, generators::DeletePages,
                             generators::ListAllPages, generators::MenuPages}) {
      benchmark::DoNotOptimize(pages(site));
    }
  }
  state.SetComplexityN(state.range(0));
}

void Sizes(benchmark::internal::Benchmark* benchmark, int64_t largest) {
  benchmark->Arg(largest / 4)->Arg(largest / 2)->Arg(largest);
  benchmark->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(MakeMenuPage)->Apply([](auto* benchmark) { Sizes(benchmark, 999'999); });
BENCHMARK(MakePhpPages)->Apply([](auto* benchmark) { Sizes(benchmark, 5'000); });

}  // namespace
}  // namespace tagsmith::bench

BENCHMARK_MAIN();
