#include <iostream>

#include "fixed_pitch_finder.h"
#include "mtext/dispose.h"
#include "mtext/flatten.h"
#include "mtext/format_at.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/base/unicode.h"

constexpr double k_height = 2.5;  // the text height of the entity, in drawing units

mtext::format::string base_format() {
  mtext::format::string base;
  base.height = k_height;
  base.height_kind = 0;  // drawing units
  base.font = u"Arial";
  return base;
}

mtext::multitext read(const std::u16string& codes) {
  mtext::multitext text;
  mtext::parse(codes, base_format(), text, mtext::fields_map());
  for (const mtext::part& part : text.parts) {
    std::u16string plain;
    mtext::serialize_raw(plain, part, /*tilde_spaces=*/false);
    if (part.type() == mtext::part_string)
      std::cout << "a word, " << part.format.height << " high: " << odToUtf8(plain) << '\n';
  }
  return text;
}

void change(mtext::multitext& text) {
  mtext::format::string_partial red;
  red.color = mtext::format::text_color{.kind = 0, .index = 1};
  red.underline = true;
  for (mtext::part& part : text.parts) {
    if (part.type() != mtext::part_string) continue;
    auto& word = static_cast<mtext::string&>(part);
    if (word.text != u"oak") continue;
    word.text = u"walnut";
    mtext::format::apply_to(word.format, red);
  }
}

mtext::geom_multitext lay_out(const mtext::multitext& text) {
  mtext::geom_multitext laid_out = mtext::to_geom(text, k_height, fixed_pitch_finder());
  laid_out.info.height = k_height;
  laid_out.info.columns.width = 30;  // where lines wrap; 0 for nowhere
  mtext::dispose(laid_out);
  return laid_out;
}

void print_lines(const mtext::geom_multitext& text) {
  for (const mtext::geom_line& line : text.lines) {
    std::u16string plain;
    for (std::size_t i = line.first; i < line.last; ++i)
      if (!is_terminator(text.parts[i])) mtext::serialize_raw(plain, text.parts[i].part(), false);
    std::cout << "baseline at " << line.y << ": [" << odToUtf8(plain) << "]\n";
  }
}

void type_at(mtext::geom_multitext& text, double x, double y, std::u16string_view typed) {
  const mtext::text_hit hit = text.position_at(x, y);
  const auto format = mtext::format::insertion_format(text, base_format(), hit.at);
  text.insert(hit.at, mtext::to_geom(typed, format, k_height, fixed_pitch_finder()));
  mtext::dispose(text);
  std::cout << "typed at position " << hit.at << " in line " << hit.line << '\n';
}

std::u16string write(const mtext::geom_multitext& text) {
  return mtext::serialize(mtext::flatten(text), base_format(), k_height);
}

int main() {
  mtext::multitext logical = read(uR"({\H1.4x;Doors}\Poak frames for 12 offices, %%c 90)");
  change(logical);
  mtext::geom_multitext text = lay_out(logical);
  print_lines(text);
  type_at(text, 10, -3, u" (all)");
  print_lines(text);
  std::cout << odToUtf8(write(text)) << '\n';
}
