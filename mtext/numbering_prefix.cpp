#include "mtext/numbering_prefix.h"

#include <algorithm>
#include <limits>

#include "mtext/bijective.h"

namespace mtext {
namespace {

bool take(std::u16string_view& text, char16_t character) {
  if (text.empty() || text.front() != character) return false;
  text.remove_prefix(1);
  return true;
}

void skip_blanks(std::u16string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(u" \t\n\v\f\r"), text.size()));
}

/// Decimal digits up to 2^64 - 1; nothing for a greater number, or without a digit.
std::optional<std::uint64_t> read_digits(std::u16string_view& text) {
  constexpr std::uint64_t greatest = std::numeric_limits<std::uint64_t>::max();
  const std::size_t count = std::min(text.find_first_not_of(u"0123456789"), text.size());
  if (count == 0) return std::nullopt;
  std::uint64_t value = 0;
  for (const char16_t each : text.substr(0, count)) {
    const std::uint64_t digit = each - u'0';
    if (value > (greatest - digit) / 10) return std::nullopt;
    value = value * 10 + digit;
  }
  text.remove_prefix(count);
  return value;
}

/// A number and its full stop.
std::optional<std::uint64_t> read_number(std::u16string_view& text) {
  std::u16string_view rest = text;
  skip_blanks(rest);
  const bool negative = take(rest, u'-');
  if (!negative) take(rest, u'+');
  const auto value = read_digits(rest);
  if (!value || !take(rest, u'.')) return std::nullopt;
  text = rest;
  return negative ? -*value : *value;
}

/// A level in letters, of the first alphabet that it can be read with.
std::optional<marks::index> read_lettered(std::u16string_view& text,
                                          const marks::letters_dictionary& dictionary) {
  for (std::size_t i = 0; i < dictionary.size(); ++i) {
    if (const auto value = marks::read_letters(text, dictionary[i].lower)) return marks::index{*value, 1, i};
    if (const auto value = marks::read_letters(text, dictionary[i].upper)) return marks::index{*value, 2, i};
  }
  return std::nullopt;
}

}  // namespace

std::optional<marks::index> read_label_index(std::u16string_view& text,
                                             const marks::letters_dictionary& dictionary) {
  if (take(text, bullet_character)) return marks::index{0, 3, 0};
  if (const auto level = read_lettered(text, dictionary)) return level;
  if (const auto value = read_number(text)) return marks::index{*value, 0, 0};
  return std::nullopt;
}

std::optional<std::vector<marks::index>> read_label(std::u16string_view text,
                                                    const marks::letters_dictionary& dictionary) {
  std::vector<marks::index> levels;
  do {
    const auto level = read_label_index(text, dictionary);
    if (!level) return std::nullopt;
    levels.push_back(*level);
  } while (!text.empty());
  return levels;
}

}  // namespace mtext
