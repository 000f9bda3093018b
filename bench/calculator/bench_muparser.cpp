// muParser: parses at the first evaluation of an expression.
#include <benchmark/benchmark.h>
#include <muParser.h>

#include <iterator>

#include "bench/calculator/terms.h"

namespace dorvalin {
namespace {

void EverydayTermsMuparser(benchmark::State& state) {
  mu::Parser parser;
  parser.DefineConst("pi", 3.14159265358979);
  for (auto _ : state) {
    for (const BenchTerm& row : kBenchTerms) {
      parser.SetExpr(row.peer);
      benchmark::DoNotOptimize(parser.Eval());
    }
  }
  state.SetItemsProcessed(state.iterations() * std::ssize(kBenchTerms));
}
BENCHMARK(EverydayTermsMuparser);

}  // namespace
}  // namespace dorvalin
