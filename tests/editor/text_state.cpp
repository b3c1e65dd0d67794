#include "tests/editor/text_state.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <limits>
#include <sstream>

#include "mtext/dispose.h"
#include "mtext/flatten.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/base/unicode.h"

namespace {

/// Prints values with blanks between them and doubles with all digits.
class printer {
 public:
  printer() { m_out << std::setprecision(std::numeric_limits<double>::max_digits10); }

  template <class... Values>
  void line(const Values&... values) {
    ((m_out << values << ' '), ...);
    m_out << '\n';
  }

  std::string text() const { return m_out.str(); }

 private:
  std::ostringstream m_out;
};

void print(printer& out, const mtext::string_metrics& size) {
  out.line("  size", size.advance, size.head, size.above, size.below, size.gap, size.left_bearing,
           size.right_bearing, size.ink_top, size.ink_bottom);
}

void print(printer& out, const mtext::format::string& f) {
  out.line("  format", f.height, f.height_kind, odToUtf8(f.font), f.pitch, f.flags, f.charset, f.is_shx,
           f.color.kind, f.color.index, +f.color.red, +f.color.green, +f.color.blue, f.width_factor,
           f.oblique, f.tracking, f.align);
}

void print(printer& out, const mtext::format::paragraph& p) {
  out.line("  paragraph", p.relative, p.indent, p.left, p.right, p.before, p.after, p.alignment,
           p.spacing.style, p.spacing.value);
  for (const auto& tab : p.tabs) out.line("   tab", tab.position, tab.kind, +tab.decimal_char);
}

/// What a part says, whatever its format.
std::string content_of(const mtext::geom_part& part) {
  switch (part.type()) {
    case mtext::part_string:
      return odToUtf8(static_cast<const mtext::geom_word&>(part).text);
    case mtext::part_spaces:
      return std::to_string(static_cast<const mtext::geom_spaces&>(part).count);
    case mtext::part_stack: {
      const auto& stack = static_cast<const mtext::geom_stack&>(part);
      return odToUtf8(stack.numerator + u" over " + stack.denominator) + std::to_string(stack.kind);
    }
    case mtext::part_new_paragraph:
      return static_cast<const mtext::geom_new_paragraph&>(part).column_break ? "column" : "";
    default:
      return "";
  }
}

void print(printer& out, const mtext::geom_part& part) {
  out.line("part", part.type(), content_of(part));
  print(out, part.size);
  print(out, part.part().format);
  if (part.type() == mtext::part_new_paragraph)
    print(out, static_cast<const mtext::geom_new_paragraph&>(part).paragraph);
  if (part.type() != mtext::part_stack) return;
  print(out, static_cast<const mtext::geom_stack&>(part).top_size);
  print(out, static_cast<const mtext::geom_stack&>(part).bottom_size);
}

void print(printer& out, const mtext::marks::mark& mark) {
  out.line("mark", mark.begin, mark.end);
  if (const auto* selection = dynamic_cast<const mtext::marks::selection*>(&mark))
    out.line("  selection", selection->caret_at_begin, selection->at_line_end);
  if (const auto* field = dynamic_cast<const mtext::marks::field*>(&mark))
    out.line("  field", odToUtf8(field->code));
  if (const auto* label = dynamic_cast<const mtext::marks::numbering*>(&mark))
    for (const auto& level : label->indices) out.line("  level", level.value, level.kind, level.alphabet);
}

void print(printer& out, const mtext::convert_info& info) {
  out.line("info", info.height, info.alignment, info.vertical, info.spacing.style, info.spacing.value,
           info.extents_mode, info.columns.width, info.columns.gutter, info.columns.kind);
  for (const double height : info.columns.heights) out.line("  height", height);
}

/// The logical text: what is said and in which formats, without what layout adds.
std::string contents_of(const mtext::geom_multitext& text) {
  printer out;
  print(out, text.format);
  for (const auto& part : text.parts) out.line(part.type(), content_of(part));
  return out.text();
}

mtext::geom_multitext read_back(const ExMTextEditable& text) {
  mtext::multitext logical;
  mtext::parse(text.contentsText().str(), text.defaultFormat(), logical, {});
  return mtext::to_geom(logical, text.textHeight(), text.finder());
}

}  // namespace

std::string layout_of(const mtext::geom_multitext& text) {
  printer out;
  for (const auto& part : text.parts) out.line("place", part.x, part.y, part.size.advance);
  for (const auto& line : text.lines) {
    out.line("line", line.first, line.last, line.x, line.y);
    print(out, line.size);
  }
  for (const auto& column : text.columns)
    out.line("column", column.first, column.last, column.x, column.y, column.width, column.height);
  return out.text();
}

std::string state_of(const ExMTextEditable& text) {
  printer out;
  const auto& geometry = text.text();
  print(out, geometry.format);
  for (const auto& part : geometry.parts) print(out, part);
  for (const auto& mark : geometry.marks) print(out, mark);
  print(out, geometry.info);
  print(out, text.defaultFormat());
  out.line("frame", text.frame().width, text.frame().height, text.frame().leading, text.attachment());
  const OdDbObjectId style = text.styleId();
  if (style) out.line("style", style.database(), style.handle().value());
  return out.text() + layout_of(geometry);
}

void expect_laid_out(const ExMTextEditable& text) {
  for (const auto& mark : text.text().marks) {
    EXPECT_LE(mark.begin, mark.end);
    EXPECT_LE(mark.end, text.text().parts.size());
    const bool is_solid = dynamic_cast<const mtext::marks::solid*>(&mark) != nullptr;
    EXPECT_FALSE(is_solid && mark.empty());
  }
  mtext::geom_multitext fresh = text.text();
  mtext::dispose(fresh);
  EXPECT_EQ(layout_of(text.text()), layout_of(fresh));
}

void expect_sound(const ExMTextEditable& text) {
  expect_laid_out(text);
  EXPECT_EQ(contents_of(read_back(text)), contents_of(text.text()));
}

void expect_same_codes_again(const ExMTextEditable& text) {
  const auto logical = mtext::flatten(read_back(text));
  EXPECT_EQ(mtext::serialize(logical, text.defaultFormat(), text.textHeight()), text.contentsText().str());
}
