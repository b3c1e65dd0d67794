#include "mtext/ensure.h"
#include "mtext/numbering.h"
#include "mtext/numbering_counter.h"

namespace mtext::marks {

void update_numberings(mark_list& marks, const letters_dictionary& dictionary) {
  std::vector<number_counter> counters;
  for (mark& each : marks) {
    auto* item = dynamic_cast<numbering*>(&each);
    if (!item) continue;
    ensure(!item->indices.empty(), "!indices.empty()", "update_numberings: a label has no levels");
    // Going up a level forgets what lies deeper, so that a deeper list starts anew.
    counters.resize(item->indices.size(), number_counter(dictionary.size()));
    counters.back().increment(item->indices.back().kind, item->indices.back().alphabet);
    for (std::size_t i = 0; i < counters.size(); ++i) {
      index& level = item->indices[i];
      level.value = counters[i].current(level.kind, level.alphabet);
    }
  }
}

}  // namespace mtext::marks
