#include "od/fonts/OdLffFont.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <unordered_set>

#include "od/base/OdError.h"
#include "od/base/trimmed.h"
#include "od/base/unicode.h"
#include "od/base/whole_number.h"
#include "od/fonts/FontLines.h"
#include "od/fonts/flatten_curve.h"
#include "od/fonts/glyph_geometry.h"

namespace {

constexpr double kCapitalHeight = 9;
constexpr char32_t kReplacement = 0xFFFD;
constexpr double kLeastReplacement = 3;
constexpr char32_t kDiamond = 0x110000;  ///< a key that no character has
constexpr double kFarthest = 1e6;

std::string_view trimmed(std::string_view text) { return odTrimmed(text, " \t"); }

/// A finite number of reasonable size, 0 for anything else.
double number(std::string_view text) {
  text = trimmed(text);
  double value = 0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  return std::abs(value) < kFarthest ? value : 0;
}

std::optional<char32_t> hexCode(std::string_view digits) {
  const auto code = odWholeNumber<unsigned>(digits, 16);
  return code && *code <= 0x10FFFF ? std::optional<char32_t>(*code) : std::nullopt;
}

/// The code of a line such as `[0041] A`.
std::optional<char32_t> headCode(std::string_view line) {
  std::size_t close = line.find(']');
  if (!line.starts_with('[') || close == line.npos) return std::nullopt;
  std::string_view digits = line.substr(1, close - 1);
  if (digits.starts_with('#')) digits.remove_prefix(1);
  return hexCode(digits);
}

/// The part of `text` up to `separator`, which is taken off together with it.
std::string_view takeUpTo(std::string_view& text, char separator) {
  std::size_t end = text.find(separator);
  std::string_view part = text.substr(0, end);
  text.remove_prefix(end == text.npos ? text.size() : end + 1);
  return part;
}

/// One polyline, its vertices parted by semicolons: `x,y`, or `x,y,Ab` with the bulge of the segment that
/// ends there.
OdFontLine readPolyline(std::string_view line) {
  OdFontLine points;
  while (!line.empty()) {
    std::string_view vertex = takeUpTo(line, ';');
    double x = number(takeUpTo(vertex, ','));
    double y = number(takeUpTo(vertex, ','));
    std::string_view bulge = trimmed(vertex);
    OdGePoint2d point{x, y};
    if (!points.empty() && bulge.starts_with('A')) {
      OdGePoint2d start = points.back();
      odFlattenBulge(points, start, point, number(bulge.substr(1)), kCapitalHeight * kGlyphTolerance);
    } else {
      points.push_back(point);
    }
  }
  return points;
}

}  // namespace

OdLffFont::OdLffFont(std::string text, std::u16string name)
    : m_text(std::move(text)), m_name(std::move(name)) {
  FontLines lines(m_text);
  std::string_view line;
  while (lines.next(line)) {
    if (auto code = headCode(line)) {
      m_places.try_emplace(*code, lines.at());
    } else if (m_places.empty()) {
      readKey(line);
    }
  }
  if (m_places.empty()) throw OdError(eInvalidFile, odToUtf8(m_name) + " is not a stroke font");
}

void OdLffFont::readKey(std::string_view line) {
  line = trimmed(line);
  if (!line.starts_with('#')) return;
  line.remove_prefix(1);
  std::string key(trimmed(takeUpTo(line, ':')));
  std::ranges::transform(key, key.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  if (key == "letterspacing") m_letterSpacing = number(line);
  if (key == "wordspacing") m_wordSpacing = number(line);
  if (key == "linespacingfactor" && number(line) > 0) m_lineSpacingFactor = number(line);
}

bool OdLffFont::has(char32_t character) const {
  return m_places.contains(character) && !isPlaceholder(character);
}

/// Some fonts fill the places of letters that they lack with their full stop. Drawn, the letter would be lost
/// without a word.
bool OdLffFont::isPlaceholder(char32_t character) const {
  constexpr char32_t kMiddleDot = 0xB7;
  auto stop = m_places.find(U'.');
  if (character < 0x80 || character == kMiddleDot || stop == m_places.end()) return false;
  return block(m_places.at(character)) == block(stop->second);
}

/// The lines of a character up to the empty line.
std::string_view OdLffFont::block(std::size_t place) const {
  FontLines lines(m_text, place);
  std::string_view line;
  std::size_t end = place;
  while (lines.next(line) && !trimmed(line).empty()) end = lines.at();
  return std::string_view(m_text).substr(place, end - place);
}

const OdFontGlyph* OdLffFont::glyph(char32_t character, bool) const {
  if (character != U' ' && !has(character)) return nullptr;
  auto [place, isNew] = m_glyphs.try_emplace(character);
  if (isNew) place->second = read(character);
  return &place->second;
}

const OdFontGlyph* OdLffFont::missingGlyph() const {
  const OdFontGlyph* replacement = glyph(kReplacement);
  if (replacement && odGlyphBox(*replacement).height() >= kLeastReplacement) return replacement;
  auto [place, isNew] = m_glyphs.try_emplace(kDiamond);
  if (isNew) {
    place->second.contours = {{{1, 0}, {0, 2}, {1, 4}, {2, 2}, {1, 0}}};
    place->second.advance = {2 + m_letterSpacing, 0};
  }
  return &place->second;
}

OdFontGlyph OdLffFont::read(char32_t character) const {
  OdFontGlyph glyph;
  // Characters include others, and these may include again: those still to be read wait in a list. Each is
  // drawn once, whoever includes it, so a circle of inclusions comes to an end.
  std::vector<char32_t> waiting{character};
  std::unordered_set<char32_t> done;
  while (!waiting.empty()) {
    char32_t code = waiting.back();
    waiting.pop_back();
    if (done.insert(code).second) readLines(code, glyph, waiting);
  }
  OdGlyphBox box = odGlyphBox(glyph);
  double advance = box.isEmpty ? m_wordSpacing : box.right + m_letterSpacing;
  glyph.advance = {!box.isEmpty && box.right < 0 ? 0 : advance, 0};
  return glyph;
}

void OdLffFont::readLines(char32_t character, OdFontGlyph& glyph, std::vector<char32_t>& included) const {
  auto place = m_places.find(character);
  if (place == m_places.end()) return;
  FontLines lines(m_text, place->second);
  std::string_view line;
  while (lines.next(line) && !trimmed(line).empty() && !line.starts_with('[')) {
    if (line.starts_with('#')) continue;
    if (line.starts_with('C')) {
      if (auto code = hexCode(trimmed(line.substr(1)))) included.push_back(*code);
      continue;
    }
    OdFontLine points = readPolyline(line);
    if (points.size() >= 2) glyph.contours.push_back(std::move(points));
  }
}
