#include "od/dxf/code_page_name.h"

#include <algorithm>
#include <cctype>

namespace dxf {
namespace {

struct Named {
  std::string_view drawing_name;
  std::string_view icu_name;
};

constexpr Named kNames[] = {
    {"ascii", "windows-1252"},    {"undefined", "windows-1252"}, {"iso88591", "ISO-8859-1"},
    {"iso88592", "ISO-8859-2"},   {"iso88593", "ISO-8859-3"},    {"iso88594", "ISO-8859-4"},
    {"iso88595", "ISO-8859-5"},   {"iso88596", "ISO-8859-6"},    {"iso88597", "ISO-8859-7"},
    {"iso88598", "ISO-8859-8"},   {"iso88599", "ISO-8859-9"},    {"dos437", "ibm-437"},
    {"dos850", "ibm-850"},        {"dos852", "ibm-852"},         {"dos855", "ibm-855"},
    {"dos857", "ibm-857"},        {"dos860", "ibm-860"},         {"dos861", "ibm-861"},
    {"dos863", "ibm-863"},        {"dos864", "ibm-864"},         {"dos865", "ibm-865"},
    {"dos866", "ibm-866"},        {"dos869", "ibm-869"},         {"dos932", "windows-932"},
    {"macroman", "macintosh"},    {"big5", "windows-950"},       {"ksc5601", "windows-949"},
    {"johab", "johab"},           {"gb2312", "windows-936"},     {"ansi874", "windows-874"},
    {"ansi932", "windows-932"},   {"ansi936", "windows-936"},    {"ansi949", "windows-949"},
    {"ansi950", "windows-950"},   {"ansi1250", "windows-1250"},  {"ansi1251", "windows-1251"},
    {"ansi1252", "windows-1252"}, {"ansi1253", "windows-1253"},  {"ansi1254", "windows-1254"},
    {"ansi1255", "windows-1255"}, {"ansi1256", "windows-1256"},  {"ansi1257", "windows-1257"},
    {"ansi1258", "windows-1258"}, {"ansi1361", "johab"},
};

// Writers disagree on the case and on hyphens and underscores ("iso8859-1", "ISO8859_1", "8859_1").
std::string without_punctuation(std::string_view name) {
  std::string letters;
  for (char c : name) {
    if (std::isalnum(static_cast<unsigned char>(c)))
      letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  if (letters.starts_with("8859")) letters.insert(0, "iso");
  return letters;
}

}  // namespace

std::string icu_code_page_name(std::string_view drawing_name) {
  const std::string letters = without_punctuation(drawing_name);
  const auto* found = std::ranges::find(kNames, letters, &Named::drawing_name);
  return found == std::end(kNames) ? std::string() : std::string(found->icu_name);
}

}  // namespace dxf
