#include <cstring>

#include "benchmarks/texts.h"

namespace benchmarks {
namespace {

void copy_bytes(benchmark::State& state) {
  const sample_text text = text_of(state);
  std::u16string target(text.letters.size(), u' ');
  for (auto _ : state) {
    std::memcpy(target.data(), text.letters.data(), text.letters.size() * sizeof(char16_t));
    benchmark::DoNotOptimize(target.data());
    benchmark::ClobberMemory();
  }
}

}  // namespace

void register_yardstick() { add_timed("copy bytes/memcpy", copy_bytes); }

}  // namespace benchmarks
