#include "tests/docs/describe.h"

#include <cmath>
#include <numbers>
#include <sstream>

#include "tests/docs/format_code_example.h"

namespace {

using mtext::format::string_flag;

/// Words with commas between them, and a bracket around all of them.
class remarks {
 public:
  template <typename... Words>
  void add(bool holds, const Words&... words) {
    if (!holds) return;
    if (m_text.tellp() > 0) m_text << ", ";
    (m_text << ... << words);
  }
  std::string in_brackets() const {
    const std::string text = m_text.str();
    return text.empty() ? "" : " (" + text + ")";
  }

 private:
  std::ostringstream m_text;
};

std::string color_words(const mtext::format::text_color& color) {
  std::ostringstream words;
  if (color.kind == 0)
    words << "colour " << color.index;
  else
    words << "red " << +color.red << " green " << +color.green << " blue " << +color.blue;
  return words.str();
}

void add_font(remarks& words, const mtext::format::string& f, const mtext::format::string& base) {
  words.add(!(f.font == base.font), f.is_shx ? "shape font " : "font ", shown(f.font));
  words.add(f.charset != base.charset, "character set ", f.charset);
  words.add(f.pitch != base.pitch, "pitch ", f.pitch);
  words.add(f.flags & string_flag::flag_bold, "bold");
  words.add(f.flags & string_flag::flag_italic, "italic");
}

void add_format(remarks& words, const mtext::format::string& f, const mtext::format::string& base) {
  const bool same_height =
      std::abs(f.height - base.height) < mtext::format::tolerance && f.height_kind == base.height_kind;
  words.add(!same_height, "height ", f.height);
  add_font(words, f, base);
  words.add(f.flags & string_flag::flag_underline, "underlined");
  words.add(f.flags & string_flag::flag_overline, "overlined");
  words.add(!(f.color == base.color), color_words(f.color));
  words.add(f.width_factor != base.width_factor, "width ", f.width_factor);
  words.add(f.oblique != base.oblique, "slant ", f.oblique * 180 / std::numbers::pi, "°");
  words.add(f.tracking != base.tracking, "distance ", f.tracking);
  words.add(f.align == 1, "middle");
  words.add(f.align == 2, "top");
}

std::string tab_words(const mtext::format::tab_stop& stop) {
  static constexpr const char* k_kinds[] = {"left", "centre", "right", "decimal"};
  std::ostringstream words;
  words << k_kinds[stop.kind] << " tab at " << stop.position;
  if (stop.kind == 3) words << " on " << shown(std::u16string(1, stop.decimal_char));
  return words.str();
}

void add_paragraph(remarks& words, const mtext::format::paragraph& p) {
  static constexpr const char* k_alignments[] = {"", "left", "centred", "right", "justified", "distributed"};
  static constexpr const char* k_spacings[] = {"", "at least", "exactly", "multiple"};
  words.add(!p.relative, "in drawing units");
  words.add(p.indent != 0, "indent ", p.indent);
  words.add(p.left != 0, "left ", p.left);
  words.add(p.right != 0, "right ", p.right);
  words.add(p.before != 0, "before ", p.before);
  words.add(p.after != 0, "after ", p.after);
  words.add(p.alignment != 0, k_alignments[p.alignment]);
  words.add(p.spacing.style != 0, "lines ", k_spacings[p.spacing.style], " ", p.spacing.value);
  for (const mtext::format::tab_stop& stop : p.tabs) words.add(true, tab_words(stop));
}

std::string stack_words(const mtext::stack& part) {
  return "stack " + shown(part.numerator) + "/^#"[part.kind] + shown(part.denominator);
}

std::string part_words(const mtext::part& part) {
  switch (part.type()) {
    case mtext::part_string:
      return '"' + shown(static_cast<const mtext::string&>(part).text) + '"';
    case mtext::part_spaces: {
      const auto count = static_cast<const mtext::spaces&>(part).count;
      return count == 1 ? "blank" : std::to_string(count) + " blanks";
    }
    case mtext::part_tab:
      return "tab";
    case mtext::part_new_line:
      return "line";
    case mtext::part_stack:
      return stack_words(static_cast<const mtext::stack&>(part));
    case mtext::part_new_paragraph:
      return static_cast<const mtext::new_paragraph&>(part).column_break ? "column" : "paragraph";
    default:
      return "field " + shown(static_cast<const mtext::field&>(part).code);
  }
}

std::string described(const mtext::part& part, const mtext::format::string& base) {
  remarks words;
  add_format(words, part.format, base);
  if (part.type() == mtext::part_new_paragraph)
    add_paragraph(words, static_cast<const mtext::new_paragraph&>(part).paragraph);
  return part_words(part) + words.in_brackets();
}

}  // namespace

std::string describe(const mtext::multitext& text, const mtext::format::string& base) {
  remarks first;
  add_paragraph(first, text.paragraph);
  std::string result = first.in_brackets().empty() ? "" : "begins" + first.in_brackets();
  for (const mtext::part& part : text.parts) {
    if (!result.empty()) result += ", ";
    result += described(part, base);
  }
  return result;
}
