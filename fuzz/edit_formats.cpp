#include "fuzz/edit_steps.h"
#include "fuzz/layout_laws.h"
#include "fuzz/require.h"
#include "mtext/format_at.h"
#include "mtext/format_range.h"
#include "tests/mtext/stub_finder.h"

namespace fuzz {
namespace {

using namespace mtext;

constexpr double numbers[] = {0, 1, 2, 0.5, -1, 3, 1e-5, 1e300, 1e-300};

format::string_partial made_change(byte_source& input) {
  static constexpr const char16_t* fonts[] = {u"Tall", u"Arial", u"", u"txt.shx"};
  format::string_partial change;
  const std::uint8_t chosen = input.byte();
  if (chosen & 1) change.height = {input.one_of(numbers), 0};
  if (chosen & 2) change.font = input.one_of(fonts);
  if (chosen & 4) change.bold = input.flag();
  if (chosen & 8) change.underline = input.flag();
  if (chosen & 16) change.color = format::text_color{.kind = 0, .index = input.byte()};
  if (chosen & 32) change.width_factor = input.one_of(numbers);
  if (chosen & 64) change.is_shx = input.flag();
  if (chosen & 128) change.align = static_cast<std::uint32_t>(input.up_to(2));
  return change;
}

format::paragraph_partial made_paragraph(byte_source& input) {
  format::paragraph_partial change;
  const std::uint8_t chosen = input.byte();
  if (chosen & 1) change.indent = input.one_of(numbers);
  if (chosen & 2) change.left = input.one_of(numbers);
  if (chosen & 4) change.right = input.one_of(numbers);
  if (chosen & 8) change.before = input.one_of(numbers);
  if (chosen & 16) change.after = input.one_of(numbers);
  if (chosen & 32) change.alignment = static_cast<std::uint32_t>(input.up_to(5));
  if (chosen & 64)
    change.spacing = format::line_spacing{static_cast<std::uint32_t>(input.up_to(3)), input.one_of(numbers)};
  return change;
}

void change_characters(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  const format::string_partial change = made_change(input);
  const auto first = text.parts.begin() + range.first, last = first + range.count;
  format::apply_to(first, last, change);
  for (auto each = first; each != last; ++each) each->update(stub_finder());
  if (range.count == 0) return;
  const format::string_partial found = format::intersection(first, last);
  require(!change.font || found.font == change.font, "all of a range has the font that it was given");
  require(!change.align || found.align == change.align, "all of a range has the alignment that it was given");
  require(!change.color || (found.color && *found.color == *change.color),
          "all of a range has the colour that it was given");
}

void change_paragraphs(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  const format::paragraph_partial change = made_paragraph(input);
  const auto first = text.parts.begin() + range.first, last = first + range.count;
  format::paragraph& current = paragraph_at(text, range.first);
  format::apply_to(current, first, last, change);
  const format::paragraph_partial found = format::intersection(current, first, last);
  require(!change.alignment || found.alignment == change.alignment,
          "all paragraphs of a range have the alignment that they were given");
  require(!change.left || found.left == change.left,
          "all paragraphs of a range have the indent they were given");
}

void set_tabs(geom_multitext& text, byte_source& input) {
  std::vector<format::tab_stop>& tabs = paragraph_at(text, input.up_to(text.parts.size())).tabs.edit();
  tabs.clear();
  for (std::size_t i = input.up_to(5); i > 0; --i)
    tabs.push_back({input.one_of(numbers), static_cast<std::uint32_t>(input.up_to(3)), u'.'});
}

void ask(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  const marks::mark at(range.first, range.first + range.count);
  const format::string base;
  format::current_format(text, base, at);
  format::current_paragraph_format(text, at);
  const format::string typed = format::insertion_format(text, base, at);
  if (range.count == 0)
    require(typed == format::insertion_format(text, base, range.first), "a caret is a place");
}

void change_frame(geom_multitext& text, byte_source& input) {
  const double height = text.info.height;
  text.info = frame(input);
  text.info.height = height;
}

}  // namespace

void edit_formats(geom_multitext& text, byte_source& input) {
  using step = void (*)(geom_multitext&, byte_source&);
  static constexpr step steps[] = {change_characters, change_paragraphs, set_tabs, ask, change_frame};
  input.one_of(steps)(text, input);
}

}  // namespace fuzz
