#include "od/dxf/caret.h"

namespace dxf {

void decode_carets(std::u16string& text) {
  std::size_t to = text.find(u'^');
  if (to == std::u16string::npos) return;
  for (std::size_t from = to; from < text.size(); ++from, ++to) {
    text[to] = text[from];
    const bool is_escape = text[from] == u'^' && from + 1 < text.size() && text[from + 1] < 0x80;
    if (!is_escape) continue;
    ++from;
    if (text[from] != u' ') text[to] = text[from] & 31;
  }
  text.resize(to);
}

bool append_caret(char character, std::string& bytes) {
  bytes += '^';
  bytes += character == '^' ? ' ' : static_cast<char>(character + 64);
  return true;
}

}  // namespace dxf
