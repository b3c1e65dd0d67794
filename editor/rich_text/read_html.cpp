#include "editor/rich_text/read_html.h"

#include <libxml/HTMLparser.h>

#include <memory>

#include "editor/rich_text/html_style.h"
#include "od/base/unicode.h"

namespace rich {

namespace {

constexpr const char16_t* kBullet = u"\u2022";

/// An element that is open.
struct element {
  html_role role = html_role::none;
  rich::style style;
  bool keeps_blanks = false;
  int count = 0;               ///< items so far, of a counted list
  std::u16string prefix = {};  ///< of the labels within a counted list
};

/// Takes what the parser tells and builds the text.
class builder {
 public:
  bool is_too_deep() const { return m_open.size() > kMostDepth; }

  void open(std::string_view name, const xmlChar** attributes) {
    element made = m_open.back();
    if (made.role != html_role::hidden) made.role = role_of(name);
    apply_element(name, made.style);
    made.keeps_blanks |= name == "pre";
    for (; attributes && *attributes; attributes += 2) {
      const std::string_view key = text_of(attributes[0]);
      const std::string_view value = attributes[1] ? text_of(attributes[1]) : std::string_view();
      if (key == "style") apply_declarations(value, made.style);
      if (name == "font") apply_font(key, value, made.style);
    }
    made.count = 0;
    begin(made);
    m_open.push_back(std::move(made));
  }

  void close() {
    if (m_open.size() == 1) return;
    const html_role role = m_open.back().role;
    m_open.pop_back();
    if (role == html_role::block || role == html_role::item) end_paragraph();
  }

  void add(std::string_view utf8) {
    const element& in = m_open.back();
    if (in.role == html_role::hidden) return;
    for (const char16_t unit : odToUtf16(utf8)) {
      const bool blank = unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r';
      if (!blank || in.keeps_blanks) {
        put(unit);
      } else {
        if (!m_blank_waits) m_blank_style = in.style;
        m_blank_waits = true;
      }
    }
  }

  text take() {
    while (!m_text.paragraphs.empty() && m_text.paragraphs.back().runs.empty() &&
           m_text.paragraphs.back().label.empty())
      m_text.paragraphs.pop_back();
    return std::move(m_text);
  }

  static std::string_view text_of(const xmlChar* text) { return reinterpret_cast<const char*>(text); }

 private:
  /// What an element puts in front of its own text.
  void begin(element& made) {
    switch (made.role) {
      case html_role::line_break:
        m_in_line = m_blank_waits = false;
        m_text.add(u"\n", made.style);
        return;
      case html_role::cell:
        if (m_in_line) m_text.add(u"\t", made.style);
        m_blank_waits = false;
        return;
      case html_role::item:
        end_paragraph();
        return label(made);
      case html_role::block:
        // The first block of a list item stands behind the label.
        if (!has_label_alone()) end_paragraph();
        return;
      case html_role::ordered:
      case html_role::unordered:
        return end_paragraph();
      default:
        return;
    }
  }

  bool has_label_alone() const {
    return !m_text.paragraphs.empty() && m_text.paragraphs.back().runs.empty() &&
           !m_text.paragraphs.back().label.empty();
  }

  void end_paragraph() {
    m_text.begin_paragraph();
    m_in_line = m_blank_waits = false;
  }

  /// The label of an item, by the innermost list around it.
  void label(element& item) {
    for (auto list = m_open.rbegin(); list != m_open.rend(); ++list) {
      if (list->role == html_role::ordered) {
        item.prefix = list->prefix + odToUtf16(std::to_string(++list->count)) + u".";
        m_text.paragraphs.back().label = item.prefix;
        return;
      }
      if (list->role == html_role::unordered) {
        item.prefix.clear();
        m_text.paragraphs.back().label = kBullet;
        return;
      }
    }
  }

  void put(char16_t unit) {
    const rich::style& style = m_open.back().style;
    if (m_blank_waits && m_in_line) m_text.add(u" ", m_blank_style);
    m_blank_waits = false;
    m_in_line = unit != u'\n';
    if (unit != u'\r') m_text.add({&unit, 1}, style);
  }

  std::vector<element> m_open{element{}};
  text m_text;
  rich::style m_blank_style;
  bool m_in_line = false;      ///< characters of this line stand in the text
  bool m_blank_waits = false;  ///< blanks came that become one if characters follow
};

/// What the parser is told to call. The parser itself hands everything over and keeps nothing.
class callbacks {
 public:
  callbacks() {
    m_handler.startElement = [](void* self, const xmlChar* name, const xmlChar** attributes) {
      of(self).open(name, attributes);
    };
    m_handler.endElement = [](void* self, const xmlChar*) { of(self).m_builder.close(); };
    m_handler.characters = m_handler.ignorableWhitespace =
        m_handler.cdataBlock = [](void* self, const xmlChar* text, int length) {
          of(self).m_builder.add({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
        };
  }

  text read(const std::string& utf8) {
    const std::unique_ptr<htmlParserCtxt, decltype(&htmlFreeParserCtxt)> parser(
        htmlCreatePushParserCtxt(&m_handler, this, nullptr, 0, nullptr, XML_CHAR_ENCODING_UTF8),
        &htmlFreeParserCtxt);
    if (!parser) return {};
    m_parser = parser.get();
    htmlCtxtUseOptions(parser.get(), HTML_PARSE_NONET | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING |
                                         HTML_PARSE_RECOVER | HTML_PARSE_IGNORE_ENC);
    // A piece that begins with the end of something would be given up.
    constexpr std::string_view kOpening = "<html>";
    htmlParseChunk(parser.get(), kOpening.data(), static_cast<int>(kOpening.size()), /*terminate=*/0);
    htmlParseChunk(parser.get(), utf8.data(), static_cast<int>(utf8.size()), /*terminate=*/1);
    return m_builder.take();
  }

 private:
  static callbacks& of(void* self) { return *static_cast<callbacks*>(self); }

  void open(const xmlChar* name, const xmlChar** attributes) {
    m_builder.open(builder::text_of(name), attributes);
    // Deep nesting costs the parser time for each end that comes, so it ends here.
    if (m_builder.is_too_deep()) xmlStopParser(m_parser);
  }

  htmlSAXHandler m_handler{};
  htmlParserCtxtPtr m_parser = nullptr;
  builder m_builder;
};

/// Whether something in it begins as an element does. What other programs call HTML has elements; bytes that
/// happen to lie there have none.
bool has_elements(std::u16string_view source) {
  for (std::size_t at = source.find(u'<'); at != source.npos; at = source.find(u'<', at + 1)) {
    const char16_t next = at + 1 < source.size() ? source[at + 1] : u' ';
    if ((next >= u'a' && next <= u'z') || (next >= u'A' && next <= u'Z') || next == u'/' || next == u'!')
      return true;
  }
  return false;
}

}  // namespace

text read_html(std::u16string_view source) {
  // A null would end the input for the parser.
  const std::u16string_view whole = source.substr(0, std::min(source.size(), source.find(u'\0')));
  if (whole.size() > kMostUnits || !has_elements(whole)) return {};
  return callbacks().read(odToUtf8(whole));
}

}  // namespace rich
