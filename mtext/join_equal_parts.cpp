#include <algorithm>
#include <memory>
#include <vector>

#include "mtext/parse.h"

namespace mtext {

namespace {

using part_list = std::vector<std::unique_ptr<part>>;

part_list take_parts(multitext& text) {
  part_list taken;
  taken.reserve(text.parts.size());
  while (!text.parts.empty()) taken.emplace_back(text.parts.pop_back().release());
  std::reverse(taken.begin(), taken.end());
  return taken;
}

void give_back(multitext& text, part_list& list) {
  text.parts.reserve(list.size());
  for (auto& part : list) {
    if (part) text.parts.push_back(part.release());
  }
}

bool are(part_type type, const part* a, const part* b) {
  return a && b && a->type() == type && b->type() == type;
}

/// Of each run of words the first takes in the others and keeps its format. Each word is compared with the
/// one before it, not with the first: equality has a tolerance, and formats may drift along a run.
void join_words(part_list& list) {
  string* head = nullptr;
  format::string last_format;
  for (auto& element : list) {
    if (element->type() != part_string) {
      head = nullptr;
      continue;
    }
    auto& word = static_cast<string&>(*element);
    bool joins = head && last_format == word.format;
    last_format = word.format;
    if (joins) {
      head->text += word.text;
      element.reset();
    } else {
      head = &word;
    }
  }
}

/// Of each run of blanks the last takes in those before it that have its format.
void join_blanks(part_list& list) {
  for (std::size_t i = list.size(); i > 1; --i) {
    auto& earlier = list[i - 2];
    auto& later = list[i - 1];
    if (!are(part_spaces, earlier.get(), later.get()) || !(earlier->format == later->format)) continue;
    static_cast<spaces&>(*later).count += static_cast<spaces&>(*earlier).count;
    earlier = std::move(later);
  }
}

}  // namespace

void join_equal_parts(multitext& text) {
  auto list = take_parts(text);
  join_blanks(list);
  list.erase(std::remove(list.begin(), list.end(), nullptr), list.end());
  join_words(list);
  give_back(text, list);
}

}  // namespace mtext
