#include "desk/batch/command_words.h"

#include <optional>
#include <stdexcept>

std::vector<std::string> commandWords(std::string_view line) {
  std::vector<std::string> words;
  std::optional<std::string> word;
  char quote = 0;
  for (const char unit : line) {
    if (quote ? unit == quote : unit == '"' || unit == '\'') {
      quote = quote ? 0 : unit;
      if (!word) word.emplace();
    } else if (!quote && (unit == ' ' || unit == '\t')) {
      if (word) words.push_back(std::move(*word));
      word.reset();
    } else {
      if (!word) word.emplace();
      *word += unit;
    }
  }
  if (quote) throw std::invalid_argument("A quote is not closed in: " + std::string(line));
  if (word) words.push_back(std::move(*word));
  return words;
}
