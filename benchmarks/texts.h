#pragma once

#include <benchmark/benchmark.h>

#include "benchmarks/sample_text.h"

namespace benchmarks {

/// The text of a benchmark: its first argument is the size in letters, its second the density.
inline sample_text text_of(const benchmark::State& state) {
  return make_sample_text(static_cast<std::size_t>(state.range(0)), static_cast<density>(state.range(1)));
}

/// Takes the time of `work` on all texts. A name is "work/contestant". The smaller texts are measured three
/// times over, so that the fastest of them tells what the machine can do while it is left alone.
inline void add_timed(const char* name, void (*work)(benchmark::State&)) {
  benchmark::RegisterBenchmark(name, work)
      ->ArgsProduct({{1'000, 10'000, 100'000}, {0, 1, 2}})
      ->Repetitions(3);
  benchmark::RegisterBenchmark(name, work)->ArgsProduct({{1'000'000}, {0, 1, 2}});
}

/// Lets `count` tell once in a counter "bytes" what each text takes.
inline void add_counted(const char* name, void (*count)(benchmark::State&)) {
  benchmark::RegisterBenchmark(name, count)
      ->ArgsProduct({{1'000, 10'000, 100'000, 1'000'000}, {0, 1, 2}})
      ->Iterations(1);
}

/// Makes the measurements of a contestant known.
void register_scribe();
void register_session();
void register_qt();
void register_pango();
void register_yardstick();

}  // namespace benchmarks
