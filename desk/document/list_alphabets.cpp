#include "desk/document/list_alphabets.h"

#include "host/settings.h"

namespace {

struct AlphabetRow {
  const char16_t* key;
  const char16_t* name;
  const char16_t* lower;
  const char16_t* upper;
};

/// German lists count with the English letters.
constexpr AlphabetRow kRows[] = {
    {u"eng", u"English", u"abcdefghijklmnopqrstuvwxyz", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
    {u"rus", u"Русский", u"абвгдежзиклмнопрстуфхцчшщэюя", u"АБВГДЕЖЗИКЛМНОПРСТУФХЦЧШЩЭЮЯ"},
};

}  // namespace

void addListAlphabets(HostSettings& settings) {
  HostSettings& alphabets = settings.make(u"NamedListAlphabet");
  for (const AlphabetRow& row : kRows) {
    HostSettings& each = alphabets.make(row.key);
    each.setValue(u"name", row.name);
    each.setValue(u"lower", row.lower);
    each.setValue(u"upper", row.upper);
  }
}
