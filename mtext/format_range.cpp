#include "mtext/format_range.h"

namespace mtext::format {
namespace {

/// The paragraph that an element opens; null if it opens none.
template <class Part>
auto* opened_paragraph(Part& part) {
  using owner = std::conditional_t<std::is_const_v<Part>, const new_paragraph, new_paragraph>;
  return part.type() == part_new_paragraph ? &static_cast<owner&>(part.part()).paragraph : nullptr;
}

}  // namespace

void apply_to(geom_parts::iterator first, geom_parts::iterator last, const string_partial& change) {
  for (; first != last; ++first) apply_to(first->part().format, change);
}

void apply_to(paragraph& current, geom_parts::iterator first, geom_parts::iterator last,
              const paragraph_partial& change) {
  apply_to(current, change);
  for (; first != last; ++first) {
    if (paragraph* opened = opened_paragraph(*first)) apply_to(*opened, change);
  }
}

string_partial intersection(geom_parts::const_iterator first, geom_parts::const_iterator last) {
  string_partial shared = to_partial(first->part().format);
  while (++first != last) shared = intersection(shared, to_partial(first->part().format));
  return shared;
}

paragraph_partial intersection(const paragraph& current, geom_parts::const_iterator first,
                               geom_parts::const_iterator last) {
  paragraph_partial shared = to_partial(current);
  for (; first != last; ++first) {
    if (const paragraph* opened = opened_paragraph(*first)) {
      shared = intersection(shared, to_partial(*opened));
    }
  }
  return shared;
}

}  // namespace mtext::format
