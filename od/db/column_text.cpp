#include "od/db/column_text.h"

#include <algorithm>

#include "od/db/code_cursor.h"
#include "od/field/nested_markers.h"

namespace {

bool isHexadecimal(char16_t unit) {
  return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

bool isOneOf(std::u16string_view letters, char16_t letter) { return letters.find(letter) != letters.npos; }

class Reader {
 public:
  Reader(std::u16string_view text, bool endsParagraph) : m_text(text) {
    m_read.endsParagraph = endsParagraph;
  }

  OdColumnText read() {
    while (m_at < m_text.size()) step(m_text[m_at]);
    return std::move(m_read);
  }

 private:
  void step(char16_t unit) {
    m_read.endsInPercent = false;
    if (unit == u'{') {
      ++m_read.openBraces;
      copyTo(m_at + 1);
    } else if (unit == u'}') {
      closeBrace();
    } else if (unit == u'\\') {
      code();
    } else if (unit == u'%') {
      percent();
    } else {
      show(m_at + 1);
    }
  }

  void closeBrace() {
    if (m_read.openBraces == 0) {
      ++m_at;
      keepApart();
    } else {
      --m_read.openBraces;
      copyTo(m_at + 1);
    }
  }

  void percent() {
    if (m_text.substr(m_at, 2) != u"%<") {
      m_read.endsInPercent = true;
      return show(m_at + 1);
    }
    const char16_t* end = m_markers.endOf(m_text.data() + m_at, m_text.data() + m_text.size());
    if (end) return show(static_cast<std::size_t>(end - m_text.data()) + 2);
    // A field without an end is letters, and no text behind it shall end it.
    copyTo(m_at + 1);
    out() += u"{}";
    show(m_at + 1);
  }

  void code() {
    const char16_t letter = m_at + 1 < m_text.size() ? m_text[m_at + 1] : u'\0';
    if (letter == u'P' || letter == u'N') {
      endParagraph();
    } else if (letter == u'p') {
      formatParagraph();
    } else if (letter == u'S') {
      stack();
    } else if (isOneOf(u"LlOoHWQTCcAFf", letter)) {
      formatOr(letter);
    } else {
      letters(letter);
    }
  }

  void endParagraph() {
    copyTo(m_at + 2);
    m_read.hasBreak = m_read.endsParagraph = true;
  }

  void formatParagraph() {
    OdCodeCursor cursor{m_text, m_at + 2};
    cursor.accept(u'x');
    const std::size_t cut = cursor.skipParagraphItems();
    const bool ends = cut == m_text.size() && cursor.accept(u';');
    std::u16string& codes = m_read.hasBreak ? m_read.rest : m_read.paragraphCodes;
    codes += m_text.substr(m_at, std::min(cut, cursor.at) - m_at);
    if (!ends) codes += u';';
    m_at = ends ? cursor.at : m_text.size();
    m_read.formatsParagraphs = true;
    if (!m_read.hasBreak) keepApart();
  }

  /// Where something is taken out, what stood before it does not read on in what stands behind it.
  void keepApart() {
    if (!out().empty() && !isOneOf(u";{} ", out().back())) out() += u"{}";
  }

  /// Fractions have letters escaped by a backslash, the one that would end them among them.
  void stack() {
    std::size_t at = m_at + 2;
    bool escapes = false;
    while (at < m_text.size() && (escapes || m_text[at] != u';')) escapes = m_text[at++] == u'\\' && !escapes;
    const bool ends = at < m_text.size();
    show(ends ? at + 1 : at);
    if (!ends) out() += escapes ? u"\\;" : u";";
  }

  /// A code for characters, or its letters where it is none.
  void formatOr(char16_t letter) {
    OdCodeCursor cursor{m_text, m_at + 2};
    const bool isFont = letter == u'F' || letter == u'f';
    const bool isFormat = isFont                     ? cursor.skipFont()
                          : isOneOf(u"HWQT", letter) ? cursor.skipFactorOrValue()
                          : isOneOf(u"CcA", letter)  ? cursor.skipCount()
                                                     : true;
    if (!isFormat) return letters(letter);
    const bool isOpen = isFont && !cursor.accept(u';');
    copyTo(cursor.at);
    if (isOpen) out() += u';';
    if (m_read.openBraces == 0) m_read.changesFormat = true;
  }

  /// A backslash that begins no code of a format. Reading would end at a broken number of a character, and
  /// what stands behind it would be lost: it becomes letters.
  void letters(char16_t letter) {
    const bool isNumbered = (letter == u'U' || letter == u'u') && m_text.substr(m_at + 2, 1) == u"+";
    const bool isNumber = isNumbered && hasHexadecimals(m_at + 3);
    if (isOneOf(u"{}\\~", letter)) return show(m_at + 2);
    if (isNumber) return show(m_at + 7);
    if (isNumbered || couldGoOn(m_at + 2)) out() += u'\\';
    show(m_at + 1);
  }

  bool hasHexadecimals(std::size_t from) const {
    const std::u16string_view digits = m_text.substr(from, 4);
    return digits.size() == 4 && std::all_of(digits.begin(), digits.end(), isHexadecimal);
  }

  /// True when nothing that could not belong to a number stands between a place and the end of the text.
  bool couldGoOn(std::size_t from) const {
    return from >= m_text.size() || m_text.find_first_not_of(u"0123456789.-", from) == m_text.npos;
  }

  void show(std::size_t end) {
    copyTo(end);
    m_read.endsParagraph = false;
  }

  void copyTo(std::size_t end) {
    out() += m_text.substr(m_at, end - m_at);
    m_at = end;
  }

  std::u16string& out() { return m_read.hasBreak ? m_read.rest : m_read.opening; }

  std::u16string_view m_text;
  std::size_t m_at = 0;
  OdNestedMarkers m_markers;
  OdColumnText m_read;
};

}  // namespace

OdColumnText odReadColumnText(std::u16string_view text, bool endsParagraph) {
  return Reader(text, endsParagraph).read();
}
