#include "mtext/write_paragraph.h"

#include <algorithm>
#include <string_view>

#include "mtext/serialize.h"
#include "mtext/write_number.h"

namespace mtext {

namespace writing {

namespace {

/// Digits of a tab position that no other number stands before. Deliberate: the precision of codes is set by
/// the first length or spacing only, and drawings hold both spellings.
constexpr int k_precision_before_numbers = 6;

/// The items of one paragraph code.
class item_writer {
 public:
  void length(char16_t letter, const std::optional<double>& value) {
    if (!value) return;
    if (m_has_length) m_items += u',';
    m_items += letter;
    number(*value);
    m_has_length = true;
  }

  void alignment(std::uint32_t value) {
    constexpr std::u16string_view letters = u"*lcrjd";
    if (value < letters.size()) m_items.append(u"q") += letters[value];
  }

  void spacing(const format::line_spacing& spacing) {
    constexpr std::u16string_view letters = u"*aem";
    if (spacing.style >= letters.size()) return;
    m_items.append(u"s") += letters[spacing.style];
    if (spacing.style != 0) number(spacing.value);
  }

  void tabs(const std::vector<format::tab_stop>& stops) {
    if (m_has_length) m_items += u',';
    m_items += u't';
    if (stops.empty()) m_items += u'z';
    for (const auto& stop : stops) {
      if (&stop != &stops.front()) m_items += u',';
      tab(stop);
    }
  }

  void finish(std::u16string& out, bool& px_written) {
    if (m_items.empty()) return;
    out.append(px_written ? u"\\p" : u"\\px").append(m_items) += u';';
    px_written = true;
  }

 private:
  void number(double value) {
    m_precision = k_precision;
    append_number(m_items, value);
  }

  void tab(const format::tab_stop& stop) {
    if (stop.kind == 1) m_items += u'c';
    if (stop.kind == 2) m_items += u'r';
    if (stop.kind == 3) m_items.append(u"D") += stop.decimal_char;
    append_number(m_items, stop.position, m_precision);
  }

  std::u16string m_items;
  bool m_has_length = false;
  int m_precision = k_precision_before_numbers;
};

/// A length of a first paragraph as a multiple of the text height; nothing when it is 0.
std::optional<double> first_length(const format::paragraph& p, double length, double base_height) {
  double scaled = p.relative ? length : length / base_height;
  return scaled == 0 ? std::nullopt : std::optional(scaled);
}

std::vector<format::tab_stop> sorted(std::vector<format::tab_stop> tabs) {
  format::sort_tabs(tabs);
  return tabs;
}

}  // namespace

void append_paragraph_change(std::u16string& out, const format::paragraph_partial& p, bool& px_written) {
  item_writer items;
  items.length(u'i', p.indent);
  items.length(u'l', p.left);
  items.length(u'r', p.right);
  items.length(u'b', p.before);
  items.length(u'a', p.after);
  if (p.alignment) items.alignment(*p.alignment);
  if (p.spacing) items.spacing(*p.spacing);
  if (p.tabs) items.tabs(*p.tabs);
  items.finish(out, px_written);
}

}  // namespace writing

bool serialize(std::u16string& out, double base_height, const format::paragraph& p, bool& px_written) {
  auto length = [&](double value) { return writing::first_length(p, value, base_height); };
  format::paragraph_partial set;
  set.indent = length(p.indent);
  set.left = length(p.left);
  set.right = length(p.right);
  set.before = length(p.before);
  set.after = length(p.after);
  if (p.alignment != 0) set.alignment = p.alignment;
  if (p.spacing.style != 0) set.spacing = p.spacing;
  if (!p.tabs.empty()) set.tabs = writing::sorted(p.tabs);
  writing::append_paragraph_change(out, set, px_written);
  return true;
}

}  // namespace mtext
