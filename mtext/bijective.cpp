#include "mtext/bijective.h"

#include <algorithm>
#include <stdexcept>

#include "mtext/ensure.h"

namespace mtext::marks {
namespace {

constexpr std::uint64_t most_letters = 10'000'000;

}  // namespace

std::optional<std::uint64_t> read_letters(std::u16string_view& text, std::u16string_view letters) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'.') {
      if (value == 0) return std::nullopt;
      text.remove_prefix(i + 1);
      return value;
    }
    const std::size_t place = letters.find(text[i]);
    if (place == letters.npos) return std::nullopt;
    value = value * letters.size() + place + 1;
  }
  return std::nullopt;
}

std::u16string write_letters(std::uint64_t value, std::u16string_view letters) {
  std::u16string written;
  if (value == 0) return written;
  ensure(!letters.empty(), "!letters.empty()", "write_letters: no letters to count with");
  if (letters.size() == 1 && value > most_letters) {
    throw std::length_error("write_letters: the label is too long");
  }
  for (std::uint64_t rest = value; rest != 0;) {
    std::uint64_t digit = rest % letters.size();
    rest /= letters.size();
    if (digit == 0) {
      digit = letters.size();
      --rest;
    }
    written += letters[digit - 1];
  }
  std::reverse(written.begin(), written.end());
  return written;
}

}  // namespace mtext::marks
