#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// Ends the program with the sentence `law` on standard error unless it `holds`; the fuzzer keeps the input
/// then.
inline void require(bool holds, const char* law) {
  if (holds) return;
  std::fprintf(stderr, "Broken law: %s\n", law);
  std::abort();
}

}  // namespace fuzz
