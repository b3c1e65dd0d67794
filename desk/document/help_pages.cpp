#include "desk/document/help_pages.h"

#include <algorithm>

namespace {

struct HelpRow {
  std::u16string_view key;
  const char* name;
  const char* anchor;
};

constexpr HelpRow kRows[] = {
    {u"", "README", ""},
    {u"IDH_SCRIBE_MTEXT_SAVE_CHANGES", "paragraphs-and-columns", "leaving-a-text"},
};

}  // namespace

HelpPage helpPage(std::u16string_view key) {
  const auto found = std::ranges::find(kRows, key, &HelpRow::key);
  const HelpRow& row = found == std::end(kRows) ? kRows[0] : *found;
  return {row.name, row.anchor};
}
