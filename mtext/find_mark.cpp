#include "mtext/marks.h"

namespace mtext::marks {
namespace {

template <class Mark>
const Mark* find_covering(const mark_list& marks, std::size_t at) {
  for (const mark& each : marks) {
    if (each.begin > at || at >= each.end) continue;
    if (const Mark* found = dynamic_cast<const Mark*>(&each)) return found;
  }
  return nullptr;
}

}  // namespace

const solid* find_solid(const mark_list& marks, std::size_t at) { return find_covering<solid>(marks, at); }

solid* find_solid(mark_list& marks, std::size_t at) {
  return const_cast<solid*>(find_covering<solid>(marks, at));
}

const numbering* find_numbering(const mark_list& marks, std::size_t at) {
  return find_covering<numbering>(marks, at);
}

numbering* find_numbering(mark_list& marks, std::size_t at) {
  return const_cast<numbering*>(find_covering<numbering>(marks, at));
}

void drop_empty_solids(mark_list& marks) {
  marks.erase_if([](const mark& each) { return each.empty() && dynamic_cast<const solid*>(&each); });
}

}  // namespace mtext::marks
