#include "benchmarks/memory_in_use.h"

#include <malloc.h>

namespace benchmarks {

std::size_t memory_in_use() {
  const auto heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

}  // namespace benchmarks
