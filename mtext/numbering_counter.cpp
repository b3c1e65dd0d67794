#include "mtext/numbering_counter.h"

#include "mtext/ensure.h"

namespace mtext::marks {

std::size_t number_counter::index_of(std::uint32_t kind, std::uint64_t alphabet) const {
  std::uint64_t ret = kind == 3 ? 1 : 0;
  if (kind == 1 || kind == 2) {
    // An alphabet far out stands for its own place, which is too far as well: doubled, it could wrap around.
    ret = alphabet < value.size() ? alphabet * 2 + 1 + kind : alphabet;
  }
  ensure(ret < value.size(), "ret < value.size()", "number_counter::index_of: too big index");
  return ret;
}

void number_counter::increment(std::uint32_t kind, std::uint64_t alphabet) {
  ++value[index_of(kind, alphabet)];
}

std::uint64_t number_counter::current(std::uint32_t kind, std::uint64_t alphabet) {
  std::uint64_t& counted = value[index_of(kind, alphabet)];
  if (counted == 0) counted = 1;
  return counted;
}

}  // namespace mtext::marks
