// fparser: parse into byte code, then evaluate it.
#include <benchmark/benchmark.h>

#include <fparser.hh>
#include <iterator>

#include "bench/calculator/terms.h"

namespace dorvalin {
namespace {

double Solved(FunctionParser& parser, const char* term) {
  parser.Parse(term, "");
  return parser.Eval(nullptr);
}

void EverydayTermsFparser(benchmark::State& state) {
  FunctionParser parser;
  parser.AddConstant("pi", 3.14159265358979);
  for (auto _ : state)
    for (const BenchTerm& row : kBenchTerms) benchmark::DoNotOptimize(Solved(parser, row.peer));
  state.SetItemsProcessed(state.iterations() * std::ssize(kBenchTerms));
}
BENCHMARK(EverydayTermsFparser);

void TermFparser(benchmark::State& state) {
  FunctionParser parser;
  parser.AddConstant("pi", 3.14159265358979);
  const BenchTerm& row = kBenchTerms[state.range(0)];
  for (auto _ : state) benchmark::DoNotOptimize(Solved(parser, row.peer));
  state.SetLabel(row.peer);
}
BENCHMARK(TermFparser)->DenseRange(0, std::ssize(kBenchTerms) - 1);

}  // namespace
}  // namespace dorvalin
