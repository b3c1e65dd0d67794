#include "editor/text_pieces.h"

#include <algorithm>

namespace editing {

namespace {

namespace format = mtext::format;

constexpr std::size_t kMost = 128;
/// One place in 16 ends a piece that has the least length.
constexpr int kCutBits = 4;
constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15ULL;

/// What stands for a part in a fingerprint.
std::uint16_t sign_of(const mtext::geom_part& part) {
  if (part.type() != mtext::part_string) return static_cast<std::uint16_t>(part.type());
  const auto& text = static_cast<const mtext::geom_word&>(part).text;
  return text.empty() ? 0 : text.front();
}

std::uint64_t extended(std::uint64_t fingerprint, std::uint16_t sign) {
  return (fingerprint ^ sign) * kMix + (fingerprint >> 29);
}

/// The last four characters decide; `recent` holds them.
bool ends_piece(std::uint64_t recent) { return (recent * kMix) >> (64 - kCutBits) == 0; }

bool same(const format::text_color& a, const format::text_color& b) {
  return a.kind == b.kind && a.index == b.index && a.top == b.top && a.red == b.red && a.green == b.green &&
         a.blue == b.blue;
}

bool same(const mtext::string_metrics& a, const mtext::string_metrics& b) {
  return a.advance == b.advance && a.head == b.head && a.above == b.above && a.below == b.below &&
         a.gap == b.gap && a.left_bearing == b.left_bearing && a.right_bearing == b.right_bearing &&
         a.ink_top == b.ink_top && a.ink_bottom == b.ink_bottom;
}

bool same(const format::tab_stop& a, const format::tab_stop& b) {
  return a.position == b.position && a.kind == b.kind && a.decimal_char == b.decimal_char;
}

bool same(const format::paragraph& a, const format::paragraph& b) {
  return a.relative == b.relative && a.indent == b.indent && a.left == b.left && a.right == b.right &&
         a.before == b.before && a.after == b.after && a.alignment == b.alignment && a.spacing == b.spacing &&
         std::ranges::equal(a.tabs, b.tabs, [](const auto& x, const auto& y) { return same(x, y); });
}

bool same_stack(const mtext::geom_stack& a, const mtext::geom_stack& b) {
  return a.numerator == b.numerator && a.denominator == b.denominator && a.kind == b.kind &&
         same(a.top_size, b.top_size) && same(a.bottom_size, b.bottom_size);
}

/// Two parts of the same type in what that type alone has.
bool same_kind(const mtext::geom_part& a, const mtext::geom_part& b) {
  switch (a.type()) {
    case mtext::part_string:
      return static_cast<const mtext::geom_word&>(a).text == static_cast<const mtext::geom_word&>(b).text;
    case mtext::part_spaces:
      return static_cast<const mtext::geom_spaces&>(a).count ==
             static_cast<const mtext::geom_spaces&>(b).count;
    case mtext::part_stack:
      return same_stack(static_cast<const mtext::geom_stack&>(a), static_cast<const mtext::geom_stack&>(b));
    case mtext::part_new_paragraph: {
      const auto& x = static_cast<const mtext::geom_new_paragraph&>(a);
      const auto& y = static_cast<const mtext::geom_new_paragraph&>(b);
      return x.column_break == y.column_break && same(x.paragraph, y.paragraph);
    }
    default:
      return true;
  }
}

bool same_size(const mtext::geom_part& a, const mtext::geom_part& b) {
  if (a.type() != mtext::part_tab) return same(a.size, b.size);
  mtext::string_metrics measured = a.size;
  measured.advance = b.size.advance;
  return same(measured, b.size);
}

}  // namespace

std::vector<piece_range> cut_into_pieces(const mtext::geom_parts& parts, std::size_t first,
                                         std::size_t last) {
  std::vector<piece_range> pieces;
  std::uint64_t recent = 0;
  piece_range open{first, first, 0};
  for (std::size_t at = first; at < last; ++at) {
    const std::uint16_t sign = sign_of(parts[at]);
    recent = recent << 16 | sign;
    open.fingerprint = extended(open.fingerprint, sign);
    open.last = at + 1;
    const std::size_t length = open.last - open.first;
    if (length < kLeastPiece || (length < kMost && !ends_piece(recent))) continue;
    pieces.push_back(open);
    open = {at + 1, at + 1, 0};
  }
  if (open.last > open.first) pieces.push_back(open);
  return pieces;
}

bool same_format(const format::string& a, const format::string& b) {
  return a.height == b.height && a.height_kind == b.height_kind && a.pitch == b.pitch && a.flags == b.flags &&
         a.charset == b.charset && a.is_shx == b.is_shx && same(a.color, b.color) &&
         a.width_factor == b.width_factor && a.oblique == b.oblique && a.tracking == b.tracking &&
         a.align == b.align && a.font == b.font;
}

bool same_but_placed(const mtext::geom_part& a, const mtext::geom_part& b) {
  return a.type() == b.type() && same_kind(a, b) && same_size(a, b) &&
         same_format(a.part().format, b.part().format);
}

}  // namespace editing
