#include "od/db/column_join.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace {

/// What a text does to the text behind it.
struct Ending {
  std::u16string_view unfinished;  ///< what its last code lacks
  std::size_t openBraces = 0;
  bool closesForeignBraces = false;  ///< it has a brace that closes none of its own
  bool changesFormat = false;        ///< of characters, outside all braces
  bool formatsParagraphs = false;
  bool isParagraphEnd = false;  ///< nothing visible stands behind its last line or column break
};

class Reader {
 public:
  explicit Reader(std::u16string_view text) : m_text(text) {}

  Ending read() {
    while (m_at < m_text.size()) step(m_text[m_at++]);
    return m_ending;
  }

 private:
  void step(char16_t unit) {
    if (unit == u'{') {
      ++m_ending.openBraces;
    } else if (unit == u'}') {
      if (m_ending.openBraces == 0) m_ending.closesForeignBraces = true;
      if (m_ending.openBraces > 0) --m_ending.openBraces;
    } else if (unit == u'\\' && m_at < m_text.size()) {
      code(m_text[m_at++]);
    } else if (unit == u'\\') {
      m_ending.unfinished = u"\\";
    } else {
      m_ending.isParagraphEnd = false;
    }
  }

  void code(char16_t letter) {
    constexpr std::u16string_view kSwitches = u"LlOoKk", kValues = u"FfCcHWQTA";
    if (letter == u'P' || letter == u'N') {
      m_ending.isParagraphEnd = true;
    } else if (letter == u'p') {
      m_ending.formatsParagraphs = true;
      skipValue();
    } else if (kSwitches.find(letter) != kSwitches.npos) {
      changeFormat();
    } else if (kValues.find(letter) != kValues.npos) {
      changeFormat();
      skipValue();
    } else {
      m_ending.isParagraphEnd = false;
      // Braces in a fraction are letters.
      if (letter == u'S') skipValue();
    }
  }

  void changeFormat() {
    if (m_ending.openBraces == 0) m_ending.changesFormat = true;
  }

  void skipValue() {
    const std::size_t end = m_text.find(u';', m_at);
    if (end == m_text.npos) m_ending.unfinished = u";";
    m_at = end == m_text.npos ? m_text.size() : end + 1;
  }

  std::u16string_view m_text;
  std::size_t m_at = 0;
  Ending m_ending;
};

/// All that a paragraph code can say, as it is without one.
constexpr std::u16string_view kPlainParagraph = u"\\pxi0,l0,r0,b0,a0,q*,s*,tz;";

}  // namespace

std::u16string odJoinColumns(const std::vector<std::u16string>& texts) {
  std::u16string joined;
  const auto isText = [](const std::u16string& text) { return !text.empty(); };
  const auto last = std::find_if(texts.rbegin(), texts.rend(), isText);
  bool paragraphsDiffer = false, isParagraphEnd = false;
  for (const std::u16string& text : texts) {
    if (text.empty()) continue;
    if (paragraphsDiffer && isParagraphEnd) joined += kPlainParagraph;
    if (&text == &*last) return joined += text;
    const Ending ending = Reader(text).read();
    const bool enclosed = ending.changesFormat && !ending.closesForeignBraces;
    if (enclosed) joined += u'{';
    joined.append(text).append(ending.unfinished);
    joined.append(ending.openBraces + (enclosed ? 1 : 0), u'}');
    paragraphsDiffer = paragraphsDiffer || ending.formatsParagraphs;
    isParagraphEnd = ending.isParagraphEnd;
  }
  return joined;
}
