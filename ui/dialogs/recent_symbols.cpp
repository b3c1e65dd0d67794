#include "ui/dialogs/recent_symbols.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <string>

#include "host/profile.h"
#include "ui/dialogs/character_names.h"

namespace dialogs {
namespace {

constexpr const char16_t* kSection = u"Symbols";
constexpr const char16_t* kName = u"Recent";

}  // namespace

std::vector<char32_t> recent_symbols(const IProfile& profile) {
  const std::u16string text = profile.text(kSection, kName).value_or(std::u16string());
  std::vector<char32_t> characters;
  for (std::size_t at = 0; at < text.size() && characters.size() < kMostRecent;) {
    UChar32 code = 0;
    U16_NEXT(text.data(), at, text.size(), code);
    const auto character = static_cast<char32_t>(code);
    if (is_visible(character) && std::ranges::count(characters, character) == 0)
      characters.push_back(character);
  }
  return characters;
}

void remember_symbol(IProfile& profile, char32_t character) {
  std::vector<char32_t> characters = recent_symbols(profile);
  std::erase(characters, character);
  characters.insert(characters.begin(), character);
  if (characters.size() > kMostRecent) characters.resize(kMostRecent);
  std::u16string text;
  for (const char32_t each : characters) text += text_of(each);
  profile.setText(kSection, kName, text);
}

}  // namespace dialogs
