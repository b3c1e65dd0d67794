#include "mtext/label_text.h"

#include "mtext/bijective.h"
#include "mtext/ensure.h"
#include "mtext/numbering_prefix.h"

namespace mtext {
namespace {

std::u16string number_text(std::uint64_t value) {
  const std::string digits = std::to_string(value);
  return std::u16string(digits.begin(), digits.end());
}

std::u16string lettered_text(const marks::index& level, const marks::letters_dictionary& dictionary) {
  ensure(level.alphabet < dictionary.size(), "alphabet < dictionary.size()", "label_text: no such alphabet");
  const marks::alphabet& alphabet = dictionary[level.alphabet];
  return marks::write_letters(level.value, level.kind == 1 ? alphabet.lower : alphabet.upper);
}

string* level_part(const marks::index& level, const format::string& format,
                   const marks::letters_dictionary& dictionary) {
  if (level.kind == 3) return new string(applied_to(format, bullet_format()), {bullet_character});
  const bool lettered = level.kind == 1 || level.kind == 2;
  return new string(format, (lettered ? lettered_text(level, dictionary) : number_text(level.value)) + u'.');
}

}  // namespace

const format::string_partial& bullet_format() {
  static const format::string_partial partial{
      .font = u"Symbol", .pitch = 18, .charset = 2, .is_shx = false, .bold = false, .italic = false};
  return partial;
}

multitext label_text(const std::vector<marks::index>& levels, const format::string& format,
                     const marks::letters_dictionary& dictionary) {
  multitext label;
  for (const marks::index& each : levels) label.parts.push_back(level_part(each, format, dictionary));
  label.parts.push_back(new tab(format));
  return label;
}

}  // namespace mtext
