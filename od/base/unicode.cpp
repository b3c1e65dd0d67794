#include "od/base/unicode.h"

#include <algorithm>
#include <boost/locale/encoding_utf.hpp>

namespace {

char16_t lowerAscii(char16_t unit) { return unit >= u'A' && unit <= u'Z' ? char16_t(unit + 32) : unit; }

constexpr char32_t kReplacement = 0xFFFD;

template <typename To, typename From>
std::basic_string<To> recode(std::basic_string_view<From> text) {
  using boost::locale::utf::illegal;
  using boost::locale::utf::incomplete;
  using Source = boost::locale::utf::utf_traits<From>;
  using Target = boost::locale::utf::utf_traits<To>;
  std::basic_string<To> result;
  result.reserve(text.size());
  auto at = text.begin();
  while (at != text.end()) {
    auto before = at;
    auto point = Source::decode(at, text.end());
    if (point == illegal || point == incomplete) {
      at = before + 1;
      point = kReplacement;
    }
    Target::encode(point, std::back_inserter(result));
  }
  return result;
}

}  // namespace

std::u16string odToUtf16(std::string_view utf8) { return recode<char16_t>(utf8); }

std::u16string odToUtf16(char32_t character) {
  // Half a pair, which is no character, stays what it is.
  if (character < 0x10000) return {static_cast<char16_t>(character)};
  std::u16string pair;
  boost::locale::utf::utf_traits<char16_t>::encode(character, std::back_inserter(pair));
  return pair;
}

std::string odToUtf8(std::u16string_view utf16) { return recode<char>(utf16); }

std::u16string odLowerAscii(std::u16string_view text) {
  std::u16string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), lowerAscii);
  return lower;
}

bool odEqualNoCase(std::u16string_view a, std::u16string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char16_t x, char16_t y) { return lowerAscii(x) == lowerAscii(y); });
}
