#include "od/fonts/OdJhfFont.h"

#include <algorithm>
#include <array>
#include <optional>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/base/whole_number.h"
#include "od/fonts/glyph_geometry.h"

namespace {

constexpr char32_t kFirstCharacter = 32;
constexpr char32_t kLastAscii = 127;
constexpr char32_t kDegree = 0xB0;
/// The rows of the file are counted downwards, and the baseline is this one.
constexpr int kBaseline = 9;
/// The numbers of the degree signs among the Roman characters, where they stand in the place of DEL.
constexpr std::array kDegreeNumbers{718, 2729, 3229};

/// One record as it stands in the file.
struct Record {
  int number = 0;
  std::string letters{};  ///< two for each pair of coordinates
};

/// Takes records off a text. A record may be broken over several lines.
class RecordReader {
 public:
  explicit RecordReader(std::string_view text) : m_text(text) {}

  /// Nothing at the end and at what is no record.
  std::optional<Record> next() {
    while (m_at < m_text.size() && isLineEnd(m_text[m_at])) ++m_at;
    const auto number = field(5);
    const auto pairs = field(3);
    if (!number || !pairs || *pairs < 1) return std::nullopt;
    Record record{.number = *number};
    std::size_t wanted = static_cast<std::size_t>(*pairs) * 2;
    for (; m_at < m_text.size() && record.letters.size() < wanted; ++m_at) {
      if (!isLineEnd(m_text[m_at])) record.letters += m_text[m_at];
    }
    return record.letters.size() == wanted ? std::optional(record) : std::nullopt;
  }

 private:
  static bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

  /// The number in the next columns.
  std::optional<int> field(std::size_t width) {
    std::string_view digits = m_text.substr(std::min(m_at, m_text.size()), width);
    m_at += width;
    digits.remove_prefix(std::min(digits.find_first_not_of(' '), digits.size()));
    return odWholeNumber<int>(digits);
  }

  std::string_view m_text;
  std::size_t m_at = 0;
};

int coordinate(char letter) { return static_cast<unsigned char>(letter) - 'R'; }

OdFontGlyph glyphOf(const Record& record) {
  OdFontGlyph glyph;
  int left = coordinate(record.letters[0]);
  int right = coordinate(record.letters[1]);
  glyph.advance = {static_cast<double>(right - left), 0};
  bool lifted = true;
  for (std::size_t i = 2; i + 1 < record.letters.size(); i += 2) {
    char x = record.letters[i], y = record.letters[i + 1];
    if (x == ' ' && y == 'R') {
      lifted = true;
      continue;
    }
    if (lifted) glyph.contours.emplace_back();
    lifted = false;
    glyph.contours.back().push_back(
        {static_cast<double>(coordinate(x) - left), static_cast<double>(kBaseline - coordinate(y))});
  }
  return glyph;
}

}  // namespace

OdJhfFont::OdJhfFont(std::string_view text, std::u16string name) : m_name(std::move(name)) {
  RecordReader reader(text);
  char32_t character = kFirstCharacter;
  while (auto record = reader.next()) {
    bool isDegree = character == kLastAscii && std::ranges::count(kDegreeNumbers, record->number) > 0;
    m_glyphs.emplace(isDegree ? kDegree : character, glyphOf(*record));
    ++character;
  }
  if (m_glyphs.empty()) throw OdError(eInvalidFile, odToUtf8(m_name) + " is not a Hershey font");
  lowerPunctuation();
}

/// Some of the files have `. , : ;` three units too high.
void OdJhfFont::lowerPunctuation() {
  constexpr double kTooHigh = 3;
  const OdFontGlyph* stop = glyph(U'.');
  if (!stop || odGlyphBox(*stop).isEmpty || odGlyphBox(*stop).bottom != kTooHigh) return;
  for (char32_t character : {U'.', U',', U':', U';'}) {
    auto found = m_glyphs.find(character);
    if (found == m_glyphs.end()) continue;
    for (auto& contour : found->second.contours) {
      for (OdGePoint2d& p : contour) p.y -= kTooHigh;
    }
  }
}

const OdFontGlyph* OdJhfFont::glyph(char32_t character, bool) const {
  auto found = m_glyphs.find(character);
  return found == m_glyphs.end() ? nullptr : &found->second;
}
