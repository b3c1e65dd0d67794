#include "od/gi/OdGiTextCharacter.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "od/base/unicode.h"
#include "od/fonts/OdCharMapper.h"

namespace {

constexpr char32_t kDegree = 0xB0, kPlusMinus = 0xB1, kDiameter = 0x2205;
/// Code pages of `\M+1` to `\M+5`.
constexpr std::array kMultiByteCodePages{932, 950, 949, 1361, 936};

bool isHigh(char32_t c) { return c >= 0xD800 && c < 0xDC00; }
bool isLow(char32_t c) { return c >= 0xDC00 && c < 0xE000; }

int digitValue(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  char16_t lower = c | 0x20;
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 16;
}

/// The number that `count` digits at the start of `text` write; nothing if they are fewer.
std::optional<unsigned> number(std::u16string_view text, std::size_t count, unsigned base) {
  if (text.size() < count) return std::nullopt;
  unsigned value = 0;
  for (char16_t c : text.substr(0, count)) {
    unsigned digit = static_cast<unsigned>(digitValue(c));
    if (digit >= base) return std::nullopt;
    value = value * base + digit;
  }
  return value;
}

char32_t ofByte(unsigned byte, int codePage) {
  if (byte > 0xFF) return byte;
  char32_t character = OdCharMapper::toUnicode(std::string(1, static_cast<char>(byte)), codePage);
  return character ? character : byte;
}

class Reader {
 public:
  Reader(std::u16string_view text, int codePage)
      : m_text(text), m_length(text.size()), m_codePage(codePage) {}

  std::vector<OdGiTextCharacter> read(bool raw) {
    while (!m_text.empty()) {
      if (!raw && m_text.starts_with(u"%%") && percent()) continue;
      if (!raw && m_text.starts_with(u'\\') && escape()) continue;
      take(1, m_text.front());
    }
    return std::move(m_result);
  }

 private:
  /// Joins the second half of a pair to the first.
  void add(char32_t c, std::size_t first, std::size_t last) {
    bool isPair = isLow(c) && !m_result.empty() && isHigh(m_result.back().character);
    if (isPair) {
      char32_t& high = m_result.back().character;
      high = 0x10000 + ((high - 0xD800) << 10) + (c - 0xDC00);
      m_result.back().last = last;
      return;
    }
    OdGiTextCharacter next = m_state;
    next.character = c;
    next.first = first;
    next.last = last;
    m_result.push_back(next);
  }

  /// The next `units` of the text are this character.
  bool take(std::size_t units, char32_t character) {
    const std::size_t first = m_length - m_text.size();
    add(character, first, first + units);
    m_text.remove_prefix(units);
    return true;
  }

  bool toggle(bool OdGiTextCharacter::*line) {
    m_state.*line = !(m_state.*line);
    m_text.remove_prefix(3);
    return true;
  }

  /// At two percent signs.
  bool percent() {
    if (m_text.size() < 3) return false;
    switch (m_text[2]) {
      case u'd':
      case u'D':
        return take(3, kDegree);
      case u'p':
      case u'P':
        return take(3, kPlusMinus);
      case u'c':
      case u'C':
        return take(3, kDiameter);
      case u'%':
        return take(3, U'%');
      case u'u':
      case u'U':
        return toggle(&OdGiTextCharacter::underlined);
      case u'o':
      case u'O':
        return toggle(&OdGiTextCharacter::overlined);
      case u'k':
      case u'K':
        return toggle(&OdGiTextCharacter::struckThrough);
      default:
        break;
    }
    auto code = number(m_text.substr(2), 3, 10);
    return code && take(5, ofByte(*code, m_codePage));
  }

  /// At a backslash.
  bool escape() {
    if (m_text.starts_with(u"\\U+")) {
      auto unit = number(m_text.substr(3), 4, 16);
      return unit && take(7, *unit);
    }
    if (!m_text.starts_with(u"\\M+")) return false;
    auto page = number(m_text.substr(3), 1, 10);
    auto pair = number(m_text.substr(std::min<std::size_t>(4, m_text.size())), 4, 16);
    if (!page || !pair || *page < 1 || *page > kMultiByteCodePages.size()) return false;
    std::string bytes{static_cast<char>(*pair >> 8), static_cast<char>(*pair & 0xFF)};
    char32_t character = OdCharMapper::toUnicode(bytes, kMultiByteCodePages[*page - 1]);
    return character != 0 && take(8, character);
  }

  std::u16string_view m_text;  ///< what is still to be read
  std::size_t m_length;
  int m_codePage;
  OdGiTextCharacter m_state;
  std::vector<OdGiTextCharacter> m_result;
};

}  // namespace

std::vector<OdGiTextCharacter> odReadTextCharacters(std::u16string_view text, bool raw, int codePage) {
  return Reader(text, codePage).read(raw);
}

std::u16string odShownCharacters(std::u16string_view text) {
  std::u16string shown;
  for (const OdGiTextCharacter& each : odReadTextCharacters(text, /*raw=*/false, kOdUsualCodePage))
    shown += odToUtf16(each.character);
  return shown;
}
