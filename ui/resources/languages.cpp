#include "ui/resources/languages.h"

#include <algorithm>
#include <array>
#include <vector>

#include "ui/resources/strings.h"

namespace resources {
namespace {

/// The texts of two tables with the same numbers, side by side.
std::vector<TranslatedText> paired(std::span<const ResourceString> texts,
                                   std::span<const ResourceString> translations) {
  std::vector<TranslatedText> pairs;
  auto at = translations.begin();
  for (const ResourceString& row : texts) {
    at = std::find_if(at, translations.end(),
                      [&](const ResourceString& each) { return each.number >= row.number; });
    if (at != translations.end() && at->number == row.number) pairs.push_back({row.text, at->text});
  }
  return pairs;
}

}  // namespace

std::span<const Language> languages() {
  static const std::array<Language, 3> all{
      {{u"eng", string_table()}, {u"deu", german_strings()}, {u"rus", russian_strings()}}};
  return all;
}

void speak(std::u16string_view key) {
  const auto found = std::ranges::find(languages(), key, &Language::key);
  const bool translated = found != languages().end() && found != languages().begin();
  host::set_translations(translated ? paired(string_table(), found->strings) : std::vector<TranslatedText>());
}

}  // namespace resources
