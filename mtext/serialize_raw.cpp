#include <algorithm>

#include "mtext/serialize.h"
#include "mtext/write_text.h"

namespace mtext {

std::u16string serialize_raw(const multitext& text, bool tilde_spaces) {
  std::u16string out;
  serialize_raw(out, text, tilde_spaces);
  return out;
}

bool serialize_raw(std::u16string& out, const multitext& text, bool tilde_spaces) {
  return std::all_of(text.parts.begin(), text.parts.end(),
                     [&](const part& p) { return serialize_raw(out, p, tilde_spaces); });
}

bool serialize_raw(std::u16string& out, const part& part, bool tilde_spaces) {
  switch (part.type()) {
    case part_string:
      if (tilde_spaces) {
        writing::append_with_tildes(out, static_cast<const string&>(part).text);
      } else {
        out += static_cast<const string&>(part).text;
      }
      return true;
    case part_spaces:
      out += u' ';
      return true;
    case part_tab:
      out += u'\t';
      return true;
    case part_new_line:
    case part_new_paragraph:
      out += u"\r\n";
      return true;
    case part_stack: {
      const auto& s = static_cast<const stack&>(part);
      out.append(s.numerator).append(writing::stack_separator(s.kind)).append(s.denominator);
      return true;
    }
    case part_field:
      out += static_cast<const field&>(part).marker();
      return true;
    default:
      return false;
  }
}

}  // namespace mtext
