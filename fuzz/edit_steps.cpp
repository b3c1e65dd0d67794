#include "fuzz/edit_steps.h"

#include <algorithm>

#include "fuzz/layout_laws.h"
#include "fuzz/require.h"
#include "mtext/decode.h"
#include "mtext/dispose.h"
#include "mtext/marks.h"
#include "mtext/to_geom.h"
#include "od/base/unicode.h"
#include "tests/mtext/stub_finder.h"

namespace fuzz {
namespace {

using namespace mtext;

/// A text from the next bytes: typed characters, or format codes.
geom_multitext made_text(const convert_info& info, byte_source& input) {
  const bool typed = input.flag();
  const std::u16string written = odToUtf16(input.bytes(input.up_to(40)));
  if (typed)
    return to_geom(written, format::string{.height = 5, .height_kind = 0}, info.height, stub_finder());
  return decode(written, format::string(), info, stub_finder(), bound_fields());
}

bool holds_empty_solids(const geom_multitext& text) {
  return std::any_of(text.marks.begin(), text.marks.end(), [](const marks::mark& each) {
    return each.empty() && dynamic_cast<const marks::solid*>(&each);
  });
}

void insert(geom_multitext& text, byte_source& input) {
  const geom_multitext inserted = made_text(text.info, input);
  if (text.parts.size() + inserted.parts.size() > longest_text) return text.keep(0, longest_text / 2);
  const std::size_t at = input.up_to(text.parts.size());
  const bool back = !holds_empty_solids(text) && !holds_empty_solids(inserted);
  geom_multitext changed(text);
  changed.insert(at, inserted);
  require_marks_in_range(changed);
  require(changed.parts.size() == text.parts.size() + inserted.parts.size(), "an insertion adds its parts");
  geom_multitext undone(changed);
  undone.erase(at, inserted.parts.size(), /*drop_empty=*/true);
  if (back) require(same_layout(undone, text), "insert then erase restores the parts");
  if (back && inserted.marks.empty())
    require(same_marks(undone, text), "insert then erase restores the marks");
  text.swap(changed);
}

void append(geom_multitext& text, byte_source& input) {
  geom_multitext more = made_text(text.info, input);
  if (text.parts.size() + more.parts.size() > longest_text) return text.keep(0, longest_text / 2);
  text.append(std::move(more));
  require(more.parts.empty() && more.marks.empty(), "what was appended is left empty");
}

void erase(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  const std::size_t before = text.parts.size();
  const bool drop_empty = input.flag();
  text.erase(range.first, range.count, drop_empty);
  require(text.parts.size() == before - range.count, "erasing takes its parts");
  require(!drop_empty || !holds_empty_solids(text), "empty solids were dropped");
}

void keep(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  const geom_multitext slice = text.slice(range.first, range.count);
  require_marks_in_range(slice);
  geom_multitext kept(text);
  kept.keep(range.first, range.count);
  require(same_layout(slice, kept) && same_marks(slice, kept), "a slice is what a copy keeps");
  require(!holds_empty_solids(kept), "keeping drops empty solids");
  if (input.flag()) text.swap(kept);
}

void join_halves(geom_multitext& text, byte_source& input) {
  const std::size_t middle = input.up_to(text.parts.size());
  geom_multitext joined = text.slice(0, middle);
  joined.append(text.slice(middle, geom_multitext::to_end));
  require_layout(joined);
  require_layout(text);
  require(same_layout(joined, text), "two halves appended give the text");
}

/// Up to four ranges, and for each some new parts.
std::vector<marks::replaced_range> ranges_in(const geom_multitext& text, byte_source& input,
                                             geom_multitext& parts) {
  std::vector<marks::replaced_range> ranges;
  std::size_t from = 0;
  for (std::size_t i = input.up_to(4); i > 0; --i) {
    const std::size_t first = from + input.up_to(text.parts.size() - from);
    const std::size_t count = input.up_to(std::min<std::size_t>(text.parts.size() - first, 5));
    geom_multitext made = made_text(text.info, input);
    made.marks.clear();
    ranges.push_back({first, count, made.parts.size()});
    parts.append(std::move(made));
    from = first + count;
  }
  return ranges;
}

/// Replaces one range after the other, by the simple steps that `replace` stands for.
void replace_one_by_one(geom_multitext& text, const std::vector<marks::replaced_range>& ranges,
                        const geom_multitext& parts) {
  std::size_t moved = 0, taken = 0;
  for (const marks::replaced_range& each : ranges) {
    text.erase(each.first + moved, each.count, /*drop_empty=*/false);
    text.insert(each.first + moved, parts.slice(taken, each.new_count));
    taken += each.new_count;
    moved += each.new_count - each.count;
  }
}

void replace(geom_multitext& text, byte_source& input) {
  geom_multitext parts;
  const std::vector<marks::replaced_range> ranges = ranges_in(text, input, parts);
  if (text.parts.size() + parts.parts.size() > longest_text) return text.keep(0, longest_text / 2);
  geom_multitext expected(text);
  replace_one_by_one(expected, ranges, parts);
  text.replace(ranges, parts.parts);
  require(parts.parts.empty(), "replacing takes the new parts");
  require(same_marks(text, expected), "replacing moves marks as erasing and inserting do");
  require_layout(text);
  require_layout(expected);
  require(same_layout(text, expected), "replacing gives the parts that erasing and inserting give");
}

bool has_paragraph_end(const geom_multitext& text) {
  return std::any_of(text.parts.begin(), text.parts.end(),
                     [](const geom_part& each) { return each.type() == part_new_paragraph; });
}

/// Replaces a range of a laid-out text, and lays out only what that can have changed.
void type_over(geom_multitext& text, byte_source& input) {
  dispose(text);
  const part_range range = range_in(text, input);
  geom_multitext typed = made_text(text.info, input);
  if (text.parts.size() + typed.parts.size() > longest_text) return text.keep(0, longest_text / 2);
  const text_edit edit{
      .before = range.first,
      .behind = text.parts.size() - range.first - range.count,
      .paragraph_ends = has_paragraph_end(typed) || has_paragraph_end(text.slice(range.first, range.count))};
  text.erase(range.first, range.count, /*drop_empty=*/false);
  text.insert(range.first, std::move(typed));
  geom_multitext whole(text);
  dispose(text, edit);
  dispose(whole);
  require(same_layout(text, whole), "a layout of what changed equals a layout of all");
}

void lay_out(geom_multitext& text, byte_source& input) {
  require_layout(text);
  require_hit(text, static_cast<double>(input.byte()) - 20, 20 - static_cast<double>(input.byte()));
  if (text.lines.empty()) return;
  const std::size_t index = input.up_to(text.lines.size() - 1);
  geom_multitext line = text.line(index);
  require_marks_in_range(line);
  require(line.lines.size() == 1, "a line has one line");
}

}  // namespace

part_range range_in(const geom_multitext& text, byte_source& input) {
  const std::size_t first = input.up_to(text.parts.size());
  return {first, input.up_to(text.parts.size() - first)};
}

void edit_parts(geom_multitext& text, byte_source& input) {
  using step = void (*)(geom_multitext&, byte_source&);
  static constexpr step steps[] = {insert, append, erase, keep, join_halves, replace, lay_out, type_over};
  input.one_of(steps)(text, input);
}

void take_step(geom_multitext& text, byte_source& input) {
  using step = void (*)(geom_multitext&, byte_source&);
  static constexpr step steps[] = {edit_parts, edit_marks, edit_formats, edit_labels};
  input.one_of(steps)(text, input);
}

}  // namespace fuzz
