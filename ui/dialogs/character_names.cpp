#include "ui/dialogs/character_names.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <sstream>

#include "od/base/unicode.h"
#include "od/base/whole_number.h"

namespace dialogs {
namespace {

constexpr int kLongestName = 128;

std::string upper_ascii(std::string text) {
  for (char& each : text) {
    if (each >= 'a' && each <= 'z') each = static_cast<char>(each - 'a' + 'A');
  }
  return text;
}

std::vector<std::string> words_of(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

bool has_word(std::string_view name, std::string_view beginning) {
  for (std::size_t at = name.find(beginning); at != name.npos; at = name.find(beginning, at + 1)) {
    if (at == 0 || name[at - 1] == ' ' || name[at - 1] == '-') return true;
  }
  return false;
}

/// A search while ICU goes through all names.
struct NameSearch {
  std::vector<std::string> words;
  std::vector<char32_t> found;

  bool matches(std::string_view name) const {
    return std::ranges::all_of(words, [name](const std::string& word) { return has_word(name, word); });
  }
};

UBool take_name(void* search, UChar32 code, UCharNameChoice, const char* name, std::int32_t length) {
  auto& running = *static_cast<NameSearch*>(search);
  const auto character = static_cast<char32_t>(code);
  const std::string_view whole(name, static_cast<std::size_t>(length));
  if (running.matches(whole) && is_visible(character)) running.found.push_back(character);
  return running.found.size() < kMostFound;
}

/// The character that a text is, or whose number it is.
std::optional<char32_t> meant_character(std::u16string_view text) {
  std::size_t length = 0;
  UChar32 character = 0;
  U16_NEXT(text.data(), length, text.size(), character);
  if (length == text.size()) return static_cast<char32_t>(character);
  const std::string digits = odToUtf8(text);
  if (!digits.starts_with("U+") && !digits.starts_with("u+")) return {};
  const auto number = odWholeNumber<unsigned>(std::string_view(digits).substr(2), 16);
  return number && *number <= UCHAR_MAX_VALUE ? std::optional<char32_t>(*number) : std::nullopt;
}

}  // namespace

bool is_visible(char32_t character) {
  const auto code = static_cast<UChar32>(character);
  return u_isgraph(code) && u_charType(code) != U_PRIVATE_USE_CHAR;
}

std::u16string character_label(char32_t character) {
  char name[kLongestName] = "";
  UErrorCode status = U_ZERO_ERROR;
  u_charName(static_cast<UChar32>(character), U_EXTENDED_CHAR_NAME, name, kLongestName, &status);
  char number[16];
  std::snprintf(number, sizeof number, "U+%04X ", static_cast<unsigned>(character));
  return odToUtf16(std::string(number) + (U_SUCCESS(status) ? name : ""));
}

std::vector<char32_t> find_characters(std::u16string_view text) {
  NameSearch search{words_of(upper_ascii(odToUtf8(text))), {}};
  if (search.words.empty()) return {};
  UErrorCode status = U_ZERO_ERROR;
  u_enumCharNames(0, UCHAR_MAX_VALUE + 1, take_name, &search, U_UNICODE_CHAR_NAME, &status);
  if (const auto meant = meant_character(text); meant && is_visible(*meant)) {
    std::erase(search.found, *meant);
    search.found.insert(search.found.begin(), *meant);
  }
  return std::move(search.found);
}

std::u16string text_of(char32_t character) {
  if (character < 0x10000) return {static_cast<char16_t>(character)};
  return {static_cast<char16_t>(U16_LEAD(character)), static_cast<char16_t>(U16_TRAIL(character))};
}

}  // namespace dialogs
