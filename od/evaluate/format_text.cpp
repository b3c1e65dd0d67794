#include "od/evaluate/format_text.h"

#include <algorithm>

#include "od/evaluate/format_options.h"
#include "od/evaluate/letter_case.h"

namespace {

constexpr int kFolder = 1;
constexpr int kName = 2;
constexpr int kExtension = 4;
constexpr std::u16string_view kSlashes = u"/\\";

std::u16string partOfFileName(std::u16string_view path, int parts) {
  const std::size_t slash = path.find_last_of(kSlashes);
  const std::size_t name = slash == path.npos ? 0 : slash + 1;
  std::size_t point = path.rfind(u'.');
  // A point at the very beginning is part of the name.
  if (point == path.npos || point <= name) point = path.size();
  std::u16string text;
  if (parts & kFolder) text += path.substr(0, parts == kFolder && name > 1 ? name - 1 : name);
  if (parts & kName) text += path.substr(name, point - name);
  if (parts & kExtension) text += path.substr(point);
  return text;
}

}  // namespace

std::u16string odFormatText(std::u16string_view text, std::u16string_view format) {
  const int parts = odFormatNumber(format, u"fn", 0);
  const std::u16string shown = parts > 0 ? partOfFileName(text, parts) : std::u16string(text);
  return odInLetterCase(shown, odFormatNumber(format, u"tc", 0));
}
