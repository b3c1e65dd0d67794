#include "ui/dialogs/mnemonics.h"

#include <unicode/uchar.h>

#include <optional>
#include <set>

namespace dialogs {
namespace {

char16_t folded(char16_t unit) { return static_cast<char16_t>(u_foldCase(unit, U_FOLD_CASE_DEFAULT)); }

/// The first letter that nobody has; `beginnings` looks at the first letters of words alone.
std::optional<std::size_t> free_letter(const std::u16string& label, const std::set<char16_t>& taken,
                                       bool beginnings) {
  for (std::size_t at = 0; at < label.size(); ++at) {
    const bool begins = at == 0 || label[at - 1] == u' ';
    if ((begins || !beginnings) && u_isalnum(label[at]) && !taken.contains(folded(label[at]))) return at;
  }
  return {};
}

std::u16string with_mark(const std::u16string& label, std::optional<std::size_t> letter) {
  std::u16string marked;
  for (std::size_t at = 0; at < label.size(); ++at) {
    if (at == letter || label[at] == u'&') marked += u'&';
    marked += label[at];
  }
  return marked;
}

}  // namespace

std::vector<std::u16string> with_mnemonics(std::vector<std::u16string> labels) {
  std::vector<std::optional<std::size_t>> letters(labels.size());
  std::set<char16_t> taken;
  for (const bool beginnings : {true, false}) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
      if (!letters[i]) letters[i] = free_letter(labels[i], taken, beginnings);
      if (letters[i]) taken.insert(folded(labels[i][*letters[i]]));
    }
  }
  for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = with_mark(labels[i], letters[i]);
  return labels;
}

}  // namespace dialogs
