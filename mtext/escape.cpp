#include "mtext/escape.h"

#include "mtext/parse.h"
#include "mtext/serialize.h"

namespace mtext {

std::u16string escape_mtext(const char16_t* text, bool keep_line_feeds) {
  std::u16string escaped;
  for (; *text; ++text) {
    switch (*text) {
      case u'\n':
        if (keep_line_feeds) escaped += u"\\P";
        break;
      case u'\r':
        break;
      case u'\\':
      case u'{':
      case u'}':
        escaped.append(u"\\") += *text;
        break;
      default:
        escaped += *text;
    }
  }
  return escaped;
}

std::u16string unformat_mtext(const char16_t* text) {
  multitext parsed;
  parse(text, format::string(), parsed, fields_map());
  return serialize_raw(parsed, /*tilde_spaces=*/false);
}

OdString UnformatMText(const char16_t* text) { return unformat_mtext(text); }

}  // namespace mtext
