#include "od/db/column_join.h"

#include <algorithm>

#include "od/db/column_text.h"

namespace {

/// All that a paragraph code can say, as it is without one.
constexpr std::u16string_view kPlainParagraph = u"\\pi0,l0,r0,b0,a0,q*,s*,tz;";

class Joiner {
 public:
  void append(const std::u16string& text, bool isLast) {
    OdColumnText read = odReadColumnText(text, m_endsParagraph);
    const bool keepsOrder =
        m_endsParagraph || (read.paragraphCodes.empty() && !(read.hasBreak && m_paragraphsDiffer));
    if (isLast && keepsOrder) {
      if (m_endsParagraph) m_joined += paragraphStart();
      m_joined += text;
      return;
    }
    const bool enclosed = read.changesFormat && !isLast;
    if (enclosed) m_joined += u'{';
    appendParagraphs(read);
    const std::size_t closing = read.openBraces + (enclosed ? 1 : 0);
    m_joined.append(closing, u'}');
    if (closing == 0 && read.endsInPercent) m_joined += u"{}";
    m_paragraphsDiffer = m_paragraphsDiffer || read.formatsParagraphs;
    m_endsParagraph = read.endsParagraph;
  }

  std::u16string take() { return std::move(m_joined); }

 private:
  /// A paragraph looks as its beginning tells, wherever it goes on.
  void appendParagraphs(const OdColumnText& read) {
    if (m_endsParagraph) m_joined.append(paragraphStart()).append(read.paragraphCodes);
    m_joined += read.opening;
    if (!m_endsParagraph && read.hasBreak) m_joined.append(paragraphStart()).append(read.paragraphCodes);
    m_joined += read.rest;
  }

  /// A new paragraph looks like the one before it, which belongs to another text.
  std::u16string_view paragraphStart() const {
    return m_paragraphsDiffer ? kPlainParagraph : std::u16string_view();
  }

  std::u16string m_joined;
  bool m_paragraphsDiffer = false;
  bool m_endsParagraph = true;
};

}  // namespace

std::u16string odJoinColumns(const std::vector<std::u16string>& texts) {
  const auto isText = [](const std::u16string& text) { return !text.empty(); };
  const auto last = std::find_if(texts.rbegin(), texts.rend(), isText);
  Joiner joiner;
  for (const std::u16string& text : texts)
    if (isText(text)) joiner.append(text, /*isLast=*/&text == &*last);
  return joiner.take();
}
