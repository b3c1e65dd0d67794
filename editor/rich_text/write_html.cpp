#include "editor/rich_text/write_html.h"

#include <cmath>

#include "mtext/format.h"
#include "od/base/printed_number.h"

namespace rich {

namespace {

namespace format = mtext::format;

std::u16string escaped(std::u16string_view text) {
  std::u16string result;
  for (const char16_t unit : text) {
    switch (unit) {
      case u'&':
        result += u"&amp;";
        break;
      case u'<':
        result += u"&lt;";
        break;
      case u'>':
        result += u"&gt;";
        break;
      case u' ':
        result += u"&nbsp;";
        break;
      default:
        result += unit;
    }
  }
  return result;
}

std::u16string two_digits(double value) {
  return odPrintedNumber(std::round(value * 100) / 100, std::chars_format::general, 6);
}

std::u16string color_of(const format::text_color& color) {
  constexpr std::u16string_view kDigits = u"0123456789abcdef";
  std::u16string text = u"#";
  for (const std::uint8_t channel : {color.red, color.green, color.blue}) {
    text += kDigits[channel >> 4];
    text += kDigits[channel & 15];
  }
  return text;
}

/// The declarations that make a piece of text look like `made`.
std::u16string style_of(const format::string& made, double height) {
  std::u16string css;
  if (made.flags & format::flag_bold) css += u"font-weight:bold;";
  if (made.flags & format::flag_italic) css += u"font-style:italic;";
  if (made.flags & format::flag_underline) css += u"text-decoration:underline;";
  const double ratio = made.height_kind == 1 ? made.height : made.height / height;
  if (std::isfinite(ratio) && ratio > 0 && std::abs(ratio - 1) > format::tolerance)
    css += u"font-size:" + two_digits(ratio) + u"em;";
  // White is what a text without a colour of its own holds.
  const bool own = made.color.kind != 0 && !(made.color == format::text_color());
  if (own) css += u"color:" + color_of(made.color) + u";";
  return css;
}

std::u16string stack_html(const mtext::stack& stack) {
  std::u16string html;
  if (!stack.numerator.empty()) html += u"<sup>" + escaped(stack.numerator) + u"</sup>";
  if (!stack.numerator.empty() && !stack.denominator.empty()) html += u"/";
  if (!stack.denominator.empty()) html += u"<sub>" + escaped(stack.denominator) + u"</sub>";
  return html;
}

class writer {
 public:
  explicit writer(double height) : m_height(height) {}

  std::u16string write(const mtext::multitext& text) {
    m_html = u"<p>";
    for (const mtext::part& each : text.parts) add(each);
    leave();
    return std::move(m_html) + u"</p>";
  }

 private:
  void add(const mtext::part& part) {
    switch (part.type()) {
      case mtext::part_string:
        enter(part.format);
        m_html += escaped(static_cast<const mtext::string&>(part).text);
        return;
      case mtext::part_spaces:
        enter(part.format);
        m_html.append(static_cast<const mtext::spaces&>(part).count, u' ');
        return;
      case mtext::part_tab:
        enter(part.format);
        m_html += u"&#9;";
        return;
      case mtext::part_stack:
        enter(part.format);
        m_html += stack_html(static_cast<const mtext::stack&>(part));
        return;
      case mtext::part_new_line:
        leave();
        m_html += u"<br>";
        return;
      case mtext::part_new_paragraph:
        leave();
        m_html += u"</p>\n<p>";
        return;
      default:
        return;
    }
  }

  /// Neighbours that look the same share one element.
  void enter(const format::string& made) {
    std::u16string css = style_of(made, m_height);
    if (css == m_css) return;
    leave();
    if (!css.empty()) m_html += u"<span style=\"" + css + u"\">";
    m_css = std::move(css);
  }

  void leave() {
    if (!m_css.empty()) m_html += u"</span>";
    m_css.clear();
  }

  double m_height;
  std::u16string m_html;
  std::u16string m_css;  ///< of the element that is open
};

}  // namespace

std::u16string write_html(const mtext::multitext& text, double height) { return writer(height).write(text); }

}  // namespace rich
