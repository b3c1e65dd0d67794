#include "desk/batch/name_pattern.h"

#include "od/base/unicode.h"

bool matchesName(std::u16string_view name, std::u16string_view pattern) {
  std::size_t at = 0, wanted = 0;
  // Where to go on when a later character fits no more: behind the last star, which then takes one more.
  std::size_t behind_star = pattern.npos, taken = 0;
  while (at < name.size()) {
    if (wanted < pattern.size() && pattern[wanted] == u'*') {
      behind_star = ++wanted;
      taken = at;
    } else if (wanted < pattern.size() &&
               (pattern[wanted] == u'?' || odEqualNoCase(name.substr(at, 1), pattern.substr(wanted, 1)))) {
      ++at;
      ++wanted;
    } else if (behind_star != pattern.npos) {
      wanted = behind_star;
      at = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(u'*', wanted) == pattern.npos;
}
