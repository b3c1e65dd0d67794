#include "mtext/serialize.h"

#include "mtext/write_format.h"
#include "mtext/write_paragraph.h"
#include "mtext/write_text.h"

namespace mtext {

namespace {

/// What `serialize_state::line` tells.
enum line_place : std::uint32_t { line_start = 0, line_blank = 1, line_visible = 2 };

/// What `serialize_state::group` tells, and how far a part is from the base: equal to it, different in
/// anything but the font, different in the font.
enum group_level : std::uint32_t { level_base = 0, level_plain = 1, level_font = 2 };

/// The braces that lead from the group now open to one of `level`.
std::u16string_view braces(std::uint32_t group, std::uint32_t level) {
  if (group == level_base) return level == level_base ? u"" : u"{";
  if (level == level_base) return u"}";
  // A font can't be put back to the base's by a code, so its group ends.
  return group == level_font && level == level_plain ? u"}{" : u"";
}

/// Group and character format of one part.
void append_format(std::u16string& out, const format::string& base, const format::string& current,
                   serialize_state& state, const format::string& format) {
  auto from_base = merge(base, format);
  std::uint32_t level = base == format ? level_base : is_default_format(from_base) ? level_plain : level_font;
  bool new_group = state.group == level_font && level == level_plain;
  std::u16string codes(braces(state.group, level));
  // In a new group, what the change from the base does not hold of a font is taken from `current` all the
  // same: deliberate, as texts were always written so.
  if (level != level_base) {
    writing::append_format_codes(codes, new_group ? from_base : merge(current, format), current);
  }
  state.group = level;
  if (!codes.empty()) state.line = line_start;
  out += codes;
}

/// Keeps blanks at the start of a line apart from the word behind them.
void separate_blanks(std::u16string& out, serialize_state& state, std::uint32_t type) {
  switch (type) {
    case part_new_line:
    case part_new_paragraph:
      state.line = line_start;
      break;
    case part_spaces:
    case part_tab:
      if (state.line != line_visible) state.line = line_blank;
      break;
    case part_string:
    case part_stack:
    case part_field:
      if (state.line == line_blank) out += u"{}";
      state.line = line_visible;
      break;
    default:
      break;
  }
}

/// The operands are copied as they are: a separator or a backslash in them reads differently.
void append_stack(std::u16string& out, const stack& s) {
  out.append(u"{\\H0.7x;\\S").append(s.numerator).append(writing::stack_separator(s.kind));
  out.append(s.denominator).append(u";}");
}

void append_paragraph(std::u16string& out, double base_height, format::paragraph& current,
                      const new_paragraph& begun, bool& px_written) {
  out += begun.column_break ? u"\\N" : u"\\P";
  writing::append_paragraph_change(out, merge(base_height, current, begun.paragraph), px_written);
  current = begun.paragraph;
}

}  // namespace

std::u16string serialize(const multitext& text, const format::string& base, double base_height) {
  std::u16string out;
  serialize_state state;
  format::string current = base;
  format::paragraph current_paragraph = text.paragraph;
  bool px_written = false;
  serialize(out, base_height, text.paragraph, px_written);
  for (const auto& part : text.parts) {
    serialize(out, base_height, current_paragraph, base, current, state, part, px_written,
              /*plain_spaces=*/false);
  }
  serialize(out, state);
  return out;
}

bool serialize(std::u16string& out, double base_height, format::paragraph& current_paragraph,
               const format::string& base, format::string& current, serialize_state& state, const part& part,
               bool& px_written, bool plain_spaces) {
  append_format(out, base, current, state, part.format);
  current = part.format;
  separate_blanks(out, state, part.type());
  switch (part.type()) {
    case part_string:
      writing::append_escaped(out, static_cast<const string&>(part).text, plain_spaces);
      break;
    case part_spaces:
      out += u' ';
      break;
    case part_tab:
      out += u'\t';
      break;
    case part_new_line:
      out += u'\n';
      break;
    case part_stack:
      append_stack(out, static_cast<const stack&>(part));
      break;
    case part_new_paragraph:
      append_paragraph(out, base_height, current_paragraph, static_cast<const new_paragraph&>(part),
                       px_written);
      break;
    case part_field:
      out += static_cast<const field&>(part).marker();
      break;
    default:
      break;
  }
  return true;
}

bool serialize(std::u16string& out, serialize_state& state) {
  if (state.group != level_base) out += u'}';
  return true;
}

}  // namespace mtext
