#include "mtext/parse_state.h"

namespace mtext::reading {

bool parse_state::read_field() {
  if (!cursor.is_at(u'%', u'<')) return false;
  const char16_t* end = markers.endOf(cursor.at, cursor.last);
  if (!end) return false;
  target.parts.push_back(new field(formats.top(), std::u16string(cursor.at + 2, end)));
  cursor.at = end + 2;
  return true;
}

}  // namespace mtext::reading
