#include "ui/dialogs/unicode_blocks.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "od/base/unicode.h"
#include "ui/dialogs/character_names.h"

namespace dialogs {
namespace {

void replace_all(std::u16string& text, std::u16string_view what, std::u16string_view by) {
  for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at + by.size()))
    text.replace(at, what.size(), by);
}

/// The name as the standard prints it: the properties have it with underscores for blanks and hyphens.
std::u16string name_of(UBlockCode block) {
  const char* name = u_getPropertyValueName(UCHAR_BLOCK, block, U_LONG_PROPERTY_NAME);
  std::u16string text = name ? odToUtf16(name) : std::u16string();
  std::ranges::replace(text, u'_', u' ');
  replace_all(text, u" And ", u" and ");
  replace_all(text, u" For ", u" for ");
  replace_all(text, u"Latin 1", u"Latin-1");
  const bool ends_in_letter = text.size() > 2 && text[text.size() - 2] == u' ';
  if (ends_in_letter) text[text.size() - 2] = u'-';
  return text;
}

/// Blocks lie without gaps between them but for what belongs to none.
std::vector<unicode_block> read_blocks() {
  std::vector<unicode_block> blocks;
  UBlockCode last = UBLOCK_NO_BLOCK;
  bool is_new = false;
  for (UChar32 c = 0; c <= UCHAR_MAX_VALUE; ++c) {
    if (const UBlockCode block = ublock_getCode(c); block != last) {
      last = block;
      is_new = block != UBLOCK_NO_BLOCK;
    }
    if (last == UBLOCK_NO_BLOCK || !is_visible(static_cast<char32_t>(c))) continue;
    if (is_new) blocks.push_back({name_of(last), static_cast<char32_t>(c), 0});
    is_new = false;
    blocks.back().last = static_cast<char32_t>(c);
  }
  return blocks;
}

}  // namespace

const std::vector<unicode_block>& unicode_blocks() {
  static const std::vector<unicode_block> blocks = read_blocks();
  return blocks;
}

std::vector<char32_t> characters_of(const unicode_block& block) {
  std::vector<char32_t> characters;
  for (char32_t c = block.first; c <= block.last; ++c) {
    if (is_visible(c)) characters.push_back(c);
  }
  return characters;
}

}  // namespace dialogs
