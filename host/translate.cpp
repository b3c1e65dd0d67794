#include "host/translate.h"

#include <map>
#include <stdexcept>
#include <string>

namespace {

std::map<int, std::u16string>& strings() {
  static std::map<int, std::u16string> table;
  return table;
}

std::map<std::u16string, std::u16string, std::less<>>& translations() {
  static std::map<std::u16string, std::u16string, std::less<>> table;
  return table;
}

}  // namespace

std::u16string Supp_Translate(std::u16string_view text) {
  const auto found = translations().find(text);
  return found == translations().end() ? std::u16string(text) : found->second;
}

namespace host {

void register_strings(std::span<const ResourceString> table) {
  for (const ResourceString& row : table) {
    const auto [entry, added] = strings().try_emplace(row.number, row.text);
    if (!added && entry->second != row.text)
      throw std::invalid_argument("register_strings: string " + std::to_string(row.number) +
                                  " has two texts");
  }
}

std::u16string resource_string(int number) {
  const auto found = strings().find(number);
  if (found == strings().end())
    throw std::invalid_argument("resource_string: there is no string " + std::to_string(number));
  return Supp_Translate(found->second);
}

void set_translations(std::span<const TranslatedText> table) {
  translations().clear();
  for (const TranslatedText& row : table) translations().emplace(row.text, row.translation);
}

}  // namespace host
