#include "editor/rich_text/read_rtf.h"

#include <algorithm>
#include <iterator>

#include "editor/rich_text/rtf_token.h"
#include "od/dxf/code_page.h"

namespace rich {

namespace {

/// What the text of a group is for.
enum class destination { body, colors, label, nothing };

/// A group that is open.
struct group {
  destination into = destination::body;
  rich::style style;
  int skip_behind_unicode = 1;  ///< characters that stand for one that is also given by its number
};

constexpr std::u16string_view kNoText[] = {
    u"fonttbl",           u"stylesheet", u"info",       u"pict",      u"object",   u"header",
    u"headerl",           u"headerr",    u"headerf",    u"footer",    u"footerl",  u"footerr",
    u"footerf",           u"footnote",   u"annotation", u"themedata", u"fldinst",  u"listtable",
    u"listoverridetable", u"revtbl",     u"rsidtbl",    u"generator", u"xmlnstbl", u"datastore",
    u"latentstyles"};

constexpr int kUsualCodePage = 1252;

struct named_character {
  std::u16string_view word;
  char16_t character;
};

constexpr named_character kCharacters[] = {{u"tab", u'\t'},
                                           {u"line", u'\n'},
                                           {u"emdash", u'\u2014'},
                                           {u"endash", u'\u2013'},
                                           {u"bullet", u'\u2022'},
                                           {u"lquote", u'\u2018'},
                                           {u"rquote", u'\u2019'},
                                           {u"ldblquote", u'\u201C'},
                                           {u"rdblquote", u'\u201D'},
                                           {u"~", u'\u00A0'},
                                           {u"_", u'\u2011'},
                                           {u"\\", u'\\'},
                                           {u"{", u'{'},
                                           {u"}", u'}'},
                                           {u"emspace", u' '},
                                           {u"enspace", u' '}};

template <typename List>
bool holds(const List& list, std::u16string_view word) {
  return std::find(std::begin(list), std::end(list), word) != std::end(list);
}

/// Follows the pieces and builds the text.
class builder {
 public:
  explicit builder(std::u16string_view source) : m_tokens(source) {}

  text read() {
    while (const auto token = m_tokens.next()) take(*token);
    put_bytes();
    while (!m_text.paragraphs.empty() && m_text.paragraphs.back().runs.empty()) m_text.paragraphs.pop_back();
    return std::move(m_text);
  }

 private:
  group& in() { return m_open.back(); }

  void take(const rtf_token& token) {
    if (token.kind != rtf_token::byte) put_bytes();
    switch (token.kind) {
      case rtf_token::open:
        return open();
      case rtf_token::close:
        return close();
      case rtf_token::word:
        return obey(token);
      case rtf_token::byte:
        // Several bytes may be one character.
        if (!is_skipped()) m_bytes += static_cast<char>(token.value);
        return;
      case rtf_token::character:
        if (!is_skipped()) put(token.value);
        return;
    }
  }

  void open() {
    if (m_open.size() > kMostDepth) {
      ++m_too_deep;
    } else {
      m_open.push_back(in());
    }
  }

  void close() {
    if (m_too_deep > 0) {
      --m_too_deep;
    } else if (m_open.size() > 1) {
      const destination ended = in().into;
      m_open.pop_back();
      if (ended == destination::label && in().into != destination::label) finish_label();
    }
  }

  void obey(const rtf_token& token) {
    const std::u16string_view word = token.name;
    if (word == u"*" || holds(kNoText, word)) return send(destination::nothing);
    if (word == u"colortbl") return send(destination::colors);
    if (word == u"listtext" || word == u"pntext") return send(destination::label);
    if (word == u"bin") return m_tokens.skip(static_cast<std::size_t>(std::max(0, token.number.value_or(0))));
    if (word == u"u") return put_unicode(token.number.value_or(0));
    if (word == u"uc") in().skip_behind_unicode = std::clamp(token.number.value_or(1), 0, 100);
    if (word == u"ansicpg") return choose_page(token.number.value_or(kUsualCodePage));
    if (word == u"par" || word == u"sect" || word == u"page" || word == u"row") return end_paragraph();
    if (word == u"cell") return put(u'\t');
    if (in().into == destination::colors) return add_channel(word, token.number.value_or(0));
    for (const named_character& each : kCharacters)
      if (each.word == word) return put(each.character);
    format(word, token.number);
  }

  /// A destination within one that is left out is left out too.
  void send(destination into) {
    if (in().into != destination::nothing) in().into = into;
  }

  void format(std::u16string_view word, std::optional<int> number) {
    rich::style& style = in().style;
    const bool on = number.value_or(1) != 0;
    if (word == u"plain") style = {};
    if (word == u"b") style.bold = on;
    if (word == u"i") style.italic = on;
    if (word == u"ul" || word == u"ulw" || word == u"uld" || word == u"uldb") style.underline = on;
    if (word == u"ulnone") style.underline = false;
    if (word == u"fs" && number && *number > 0) style.size = *number / 2.0;
    if (word == u"super") style.script = on ? script::upper : script::none;
    if (word == u"sub") style.script = on ? script::lower : script::none;
    if (word == u"nosupersub") style.script = script::none;
    if (word == u"cf") style.color = color_at(number.value_or(0));
  }

  /// Colour 0 is that of the text around, whatever stands there.
  std::optional<std::uint32_t> color_at(int index) const {
    if (index <= 0 || static_cast<std::size_t>(index) >= m_colors.size()) return {};
    return m_colors[static_cast<std::size_t>(index)];
  }

  void add_channel(std::u16string_view name, int value) {
    const auto channel = static_cast<std::uint32_t>(std::clamp(value, 0, 255));
    if (name == u"red") m_color |= channel << 16;
    if (name == u"green") m_color |= channel << 8;
    if (name == u"blue") m_color |= channel;
  }

  void put_unicode(int number) {
    put(static_cast<char16_t>(number & 0xFFFF));
    m_to_skip = in().skip_behind_unicode;
  }

  /// The head of a text tells its code page, once: making one takes time.
  void choose_page(int number) {
    if (!m_page) m_page = dxf::find_code_page("ANSI_" + std::to_string(number));
  }

  /// Whether the next character only stands for one that was given by its number.
  bool is_skipped() { return m_to_skip > 0 && m_to_skip-- > 0; }

  void put_bytes() {
    if (m_bytes.empty()) return;
    std::u16string characters;
    choose_page(kUsualCodePage);
    m_page->decode(m_bytes, characters);
    m_bytes.clear();
    for (const char16_t each : characters) put(each >= 0xDC80 && each <= 0xDCFF ? u'?' : each);
  }

  void put(char16_t character) {
    if (m_too_deep > 0 || character == 0) return;
    switch (in().into) {
      case destination::body:
        return m_text.add({&character, 1}, in().style);
      case destination::label:
        m_label += character;
        return;
      case destination::colors:
        if (character != u';') return;
        if (m_colors.size() < kMostUnits) m_colors.push_back(m_color);
        m_color = 0;
        return;
      case destination::nothing:
        return;
    }
  }

  void end_paragraph() {
    if (in().into != destination::body) return;
    m_text.begin_paragraph();
  }

  /// The label of an item ends with the tab that is put behind every label.
  void finish_label() {
    while (!m_label.empty() && (m_label.back() == u'\t' || m_label.back() == u' ')) m_label.pop_back();
    const bool counted = m_label.find_first_of(u"0123456789.)") != m_label.npos || m_label.size() > 1;
    if (m_text.paragraphs.empty()) m_text.paragraphs.emplace_back();
    // A bullet comes in a font of signs, where its number means nothing elsewhere.
    if (!m_label.empty()) m_text.paragraphs.back().label = counted ? m_label : u"\u2022";
    m_label.clear();
  }

  rtf_tokens m_tokens;
  std::vector<group> m_open{group{}};
  text m_text;
  std::u16string m_label;
  std::vector<std::uint32_t> m_colors;
  std::uint32_t m_color = 0;
  std::size_t m_too_deep = 0;
  std::string m_bytes;                          ///< in the code page, not yet characters
  std::shared_ptr<const dxf::CodePage> m_page;  ///< null until it is needed
  int m_to_skip = 0;
};

}  // namespace

text read_rtf(std::u16string_view bytes) {
  if (bytes.size() > kMostUnits || !bytes.starts_with(u"{\\rtf")) return {};
  return builder(bytes).read();
}

}  // namespace rich
