#include "mtext/write_format.h"

#include <stdexcept>
#include <string_view>

#include "mtext/write_number.h"

namespace mtext::writing {

namespace {

using boost::logic::indeterminate;
using boost::logic::tribool;

constexpr double k_degrees = 57.29577951308232;
constexpr std::size_t k_shape_suffix_length = 4;

void append_real(std::u16string& out, std::u16string_view code, double value, std::u16string_view end) {
  out += code;
  append_number(out, value);
  out += end;
}

void append_count(std::u16string& out, std::u16string_view code, std::uint32_t value,
                  std::u16string_view end) {
  out += code;
  append_integer(out, value);
  out += end;
}

bool value_or(tribool change, bool current) {
  return indeterminate(change) ? current : static_cast<bool>(change);
}

/// The name of a shape font as codes spell it, without its suffix.
std::u16string_view without_suffix(std::u16string_view name) {
  if (name.size() < k_shape_suffix_length) throw std::out_of_range("invalid string position");
  return name.substr(0, name.size() - k_shape_suffix_length);
}

void append_font(std::u16string& out, const format::string_partial& delta, const format::string& current) {
  bool shx = value_or(delta.is_shx, current.is_shx);
  std::u16string_view name = delta.font ? *delta.font : current.font;
  out.append(shx ? u"\\F" : u"\\f").append(shx ? without_suffix(name) : name);
  if (!shx) {
    out.append(u"|b").append(value_or(delta.bold, current.flags & format::flag_bold) ? u"1" : u"0");
    out.append(u"|i").append(value_or(delta.italic, current.flags & format::flag_italic) ? u"1" : u"0");
  }
  append_count(out, u"|c", delta.charset.value_or(current.charset), u"");
  if (!shx) append_count(out, u"|p", delta.pitch.value_or(current.pitch), u"");
  out += u';';
}

void append_color(std::u16string& out, const format::text_color& color) {
  if (color.kind == 0) append_count(out, u"\\C", color.index, u";");
  if (color.kind != 1) return;
  auto bits = [](std::uint8_t byte, int shift) { return static_cast<std::uint32_t>(byte) << shift; };
  auto number = bits(color.top, 24) | bits(color.blue, 16) | bits(color.green, 8) | bits(color.red, 0);
  append_count(out, u"\\c", number, u";");
}

}  // namespace

void append_format_codes(std::u16string& out, const format::string_partial& delta,
                         const format::string& current) {
  if (delta.height) append_real(out, u"\\H", delta.height->first, u"x;");
  if (!is_default_format(delta)) append_font(out, delta, current);
  if (!indeterminate(delta.underline)) out += delta.underline ? u"\\L" : u"\\l";
  if (!indeterminate(delta.overline)) out += delta.overline ? u"\\O" : u"\\o";
  if (delta.color) append_color(out, *delta.color);
  if (delta.width_factor) append_real(out, u"\\W", *delta.width_factor, u";");
  if (delta.oblique) append_real(out, u"\\Q", *delta.oblique * k_degrees, u";");
  if (delta.tracking) append_real(out, u"\\T", *delta.tracking, u";");
  if (delta.align) append_count(out, u"\\A", *delta.align, u";");
}

}  // namespace mtext::writing
