#include "mtext/write_text.h"

namespace mtext::writing {

void append_escaped(std::u16string& out, std::u16string_view text, bool plain_spaces) {
  for (char16_t c : text) {
    switch (c) {
      case u'\u00B0':
        out += u"%%d";
        break;
      case u'\u00B1':
        out += u"%%p";
        break;
      case u'\u2205':
        out += u"%%c";
        break;
      case u'\\':
      case u'{':
      case u'}':
        out.append(u"\\") += c;
        break;
      case u' ':
        out += plain_spaces ? u" " : u"\\~";
        break;
      default:
        out += c;
    }
  }
}

void append_with_tildes(std::u16string& out, std::u16string_view text) {
  for (char16_t c : text) {
    if (c == u' ') {
      out += u"\\~";
    } else {
      out += c;
    }
  }
}

std::u16string_view stack_separator(std::uint32_t kind) {
  constexpr std::u16string_view separators = u"/^#";
  return kind < separators.size() ? separators.substr(kind, 1) : std::u16string_view();
}

}  // namespace mtext::writing
