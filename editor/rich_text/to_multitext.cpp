#include "editor/rich_text/to_multitext.h"

#include <algorithm>

#include "mtext/format.h"

namespace rich {

namespace {

namespace format = mtext::format;

constexpr std::uint32_t kCaretStack = 1;
constexpr std::uint32_t kTrueColor = 1;
constexpr char16_t kNoBreakSpace = 0x00A0;

/// Black is the colour of paper's ink, not one that anybody chose; a drawing may be dark.
constexpr std::uint32_t kInk = 0x000000;

class writer {
 public:
  writer(const format::string& base, double usual_size) : m_base(base), m_usual_size(usual_size) {}

  mtext::multitext write(const text& source) {
    for (const paragraph& each : source.paragraphs) {
      if (&each != &source.paragraphs.front())
        m_text.parts.push_back(new mtext::new_paragraph({}, m_base, /*breaks_column=*/false));
      if (!each.label.empty()) {
        words(each.label, m_base);
        m_text.parts.push_back(new mtext::tab(m_base));
      }
      for (const run& piece : each.runs) add(piece);
    }
    return std::move(m_text);
  }

 private:
  format::string format_of(const style& wanted) const {
    format::string made = m_base;
    if (wanted.bold) made.flags |= format::flag_bold;
    if (wanted.italic) made.flags |= format::flag_italic;
    if (wanted.underline) made.flags |= format::flag_underline;
    if (wanted.size > 0 && m_usual_size > 0) made.height *= wanted.size / m_usual_size;
    if (wanted.color && *wanted.color != kInk) {
      made.color.kind = kTrueColor;
      made.color.red = static_cast<std::uint8_t>(*wanted.color >> 16);
      made.color.green = static_cast<std::uint8_t>(*wanted.color >> 8);
      made.color.blue = static_cast<std::uint8_t>(*wanted.color);
    }
    return made;
  }

  void add(const run& piece) {
    const format::string made = format_of(piece.style);
    if (piece.style.script == script::none || piece.text.find(u'\n') != piece.text.npos)
      return words(piece.text, made);
    const bool upper = piece.style.script == script::upper;
    m_text.parts.push_back(new mtext::stack(made, upper ? piece.text : std::u16string(),
                                            upper ? std::u16string() : piece.text, kCaretStack));
  }

  void words(std::u16string_view characters, const format::string& made) {
    while (!characters.empty()) {
      const std::size_t end = std::min(characters.size(), characters.find_first_of(u" \t\n"));
      if (end > 0) {
        m_text.parts.push_back(new mtext::string(made, with_own_blanks(characters.substr(0, end))));
        characters.remove_prefix(end);
        continue;
      }
      m_text.parts.push_back(separator(characters.front(), made));
      characters.remove_prefix(1);
    }
  }

  static mtext::part* separator(char16_t unit, const format::string& made) {
    if (unit == u'\t') return new mtext::tab(made);
    if (unit == u'\n') return new mtext::new_line(made);
    return new mtext::spaces(made, 1);
  }

  /// A word's own blank is one at which no line breaks.
  static std::u16string with_own_blanks(std::u16string_view word) {
    std::u16string result(word);
    for (char16_t& unit : result)
      if (unit == kNoBreakSpace) unit = u' ';
    return result;
  }

  const format::string& m_base;
  double m_usual_size;
  mtext::multitext m_text;
};

}  // namespace

mtext::multitext to_multitext(const text& source, const mtext::format::string& base) {
  return writer(base, usual_size(source)).write(source);
}

}  // namespace rich
