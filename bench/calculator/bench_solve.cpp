// The solver from text to result: everyday terms, then long and malicious ones.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "bench/calculator/terms.h"
#include "calculator/modSolve.h"

namespace dorvalin {
namespace {

class StoppedClock : public platform::Clock {
 public:
  std::optional<std::int64_t> PerformanceFrequency() override { return std::nullopt; }
  std::int64_t PerformanceCounter() override { return 0; }
  std::uint32_t TickCount() override { return 0; }
  platform::DateTime Now() override { return {}; }
};

double Solved(std::u16string_view term) {
  static StoppedClock clock;
  double result = 0;
  benchmark::DoNotOptimize(Solve(term, result, 0, nullptr, 0, -1, {{u'.', u','}, clock}));
  return result;
}

void EverydayTermsSolver(benchmark::State& state) {
  for (auto _ : state)
    for (const BenchTerm& row : kBenchTerms) benchmark::DoNotOptimize(Solved(row.term));
  state.SetItemsProcessed(state.iterations() * std::ssize(kBenchTerms));
}
BENCHMARK(EverydayTermsSolver);

void TermSolver(benchmark::State& state) {
  const BenchTerm& row = kBenchTerms[state.range(0)];
  for (auto _ : state) benchmark::DoNotOptimize(Solved(row.term));
  state.SetLabel(row.peer);
}
BENCHMARK(TermSolver)->DenseRange(0, std::ssize(kBenchTerms) - 1);

std::u16string Repeat(std::u16string_view text, int count) {
  std::u16string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

void Hostile(benchmark::State& state, const std::u16string& term) {
  for (auto _ : state) benchmark::DoNotOptimize(Solved(term));
  state.SetComplexityN(static_cast<std::int64_t>(term.size()));
}

void Register(const char* name, const std::u16string& term) {
  benchmark::RegisterBenchmark(name, [term](benchmark::State& state) {
    Hostile(state, term);
  })->Unit(benchmark::kMillisecond);
}

[[maybe_unused]] const bool registered = [] {
  Register("Hostile/200 silent products around an unknown name",
           Repeat(u"2(", 200) + u"x" + Repeat(u")", 200));
  Register("Hostile/mixed, 500 characters", Repeat(u"2e*3x^(1!)sin(2x)!-", 26));
  Register("Hostile/postfixes and words, 500 characters", Repeat(u"2x(3)!²", 71));
  Register("Hostile/sum, 10000 characters", Repeat(u"1+", 4999) + u"12");
  Register("Hostile/product, 10000 characters", Repeat(u"2*", 4999) + u"12");
  Register("Hostile/sum with exponents, 10000 characters", Repeat(u"1E2+", 2499) + u"1E2");
  Register("Hostile/5000 brackets", Repeat(u"(", 5000) + u"1" + Repeat(u")", 5000));
  Register("Hostile/5000 silent products around an unknown name",
           Repeat(u"2(", 5000) + u"x" + Repeat(u")", 5000));
  return true;
}();

}  // namespace
}  // namespace dorvalin
