#include "mtext/text_color.h"

namespace mtext::format {

bool operator==(const text_color& a, const text_color& b) {
  if (a.kind != b.kind) return false;
  if (a.kind == 0) return a.index == b.index;
  return a.top == b.top && a.red == b.red && a.green == b.green && a.blue == b.blue;
}

}  // namespace mtext::format
