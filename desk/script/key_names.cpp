#include "desk/script/key_names.h"

#include <algorithm>
#include <array>
#include <string>

#include "od/base/unicode.h"

namespace {

struct NamedKey {
  std::u16string_view name;
  int key;
};

constexpr std::array<NamedKey, 29> kNamedKeys{{
    {u"Backspace", 8}, {u"Tab", 9},       {u"Enter", 13},  {u"Return", 13},      {u"Pause", 19},
    {u"CapsLock", 20}, {u"Esc", 27},      {u"Escape", 27}, {u"Space", 32},       {u"PageUp", 33},
    {u"PgUp", 33},     {u"PageDown", 34}, {u"PgDn", 34},   {u"End", 35},         {u"Home", 36},
    {u"Left", 37},     {u"Up", 38},       {u"Right", 39},  {u"Down", 40},        {u"Insert", 45},
    {u"Ins", 45},      {u"Delete", 46},   {u"Del", 46},    {u"Menu", 93},        {u"NumLock", 144},
    {u"Print", 44},    {u"Plus", 187},    {u"Minus", 189}, {u"ScrollLock", 145},
}};

/// One key of the main block that types two marks: without Shift and with it.
struct MarkKey {
  char16_t plain;
  char16_t shifted;
  int key;
};

constexpr std::array<MarkKey, 21> kMarkKeys{{
    {u'1', u'!', '1'},  {u'2', u'@', '2'}, {u'3', u'#', '3'}, {u'4', u'$', '4'},  {u'5', u'%', '5'},
    {u'6', u'^', '6'},  {u'7', u'&', '7'}, {u'8', u'*', '8'}, {u'9', u'(', '9'},  {u'0', u')', '0'},
    {u';', u':', 186},  {u'=', u'+', 187}, {u',', u'<', 188}, {u'-', u'_', 189},  {u'.', u'>', 190},
    {u'/', u'?', 191},  {u'`', u'~', 192}, {u'[', u'{', 219}, {u'\\', u'|', 220}, {u']', u'}', 221},
    {u'\'', u'"', 222},
}};

constexpr int kFirstFunctionKey = 112;
constexpr int kFunctionKeys = 24;
constexpr int kComposedKey = 231;

std::optional<int> functionKey(std::u16string_view name) {
  if (name.size() < 2 || name.size() > 3 || (name[0] != u'F' && name[0] != u'f')) return std::nullopt;
  int number = 0;
  for (char16_t digit : name.substr(1)) {
    if (digit < u'0' || digit > u'9') return std::nullopt;
    number = number * 10 + (digit - u'0');
  }
  if (number < 1 || number > kFunctionKeys) return std::nullopt;
  return kFirstFunctionKey + number - 1;
}

}  // namespace

std::optional<int> keyByName(std::u16string_view name) {
  if (name.size() == 1) {
    const KeyOfCharacter typed = keyOfCharacter(name[0]);
    if (typed.key == kComposedKey) return std::nullopt;
    return typed.key;
  }
  const auto named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(),
                                  [&](const NamedKey& row) { return odEqualNoCase(row.name, name); });
  if (named != kNamedKeys.end()) return named->key;
  return functionKey(name);
}

KeyOfCharacter keyOfCharacter(char16_t unit) {
  if (unit >= u'a' && unit <= u'z') return {unit - u'a' + 'A', false};
  if (unit >= u'A' && unit <= u'Z') return {unit, true};
  if (unit == u' ') return {32, false};
  if (unit == u'\t') return {9, false};
  for (const MarkKey& row : kMarkKeys) {
    if (row.plain == unit) return {row.key, false};
    if (row.shifted == unit) return {row.key, true};
  }
  return {kComposedKey, false};
}
