#include "od/evaluate/letter_case.h"

#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace {

constexpr int kUpper = 1;
constexpr int kLower = 2;
constexpr int kFirstCapital = 3;
constexpr int kTitle = 4;

icu::UnicodeString inCase(icu::UnicodeString text, int letterCase) {
  const icu::Locale& root = icu::Locale::getRoot();
  switch (letterCase) {
    case kUpper:
      return text.toUpper(root);
    case kLower:
      return text.toLower(root);
    case kFirstCapital: {
      const int behind = text.moveIndex32(0, 1);
      icu::UnicodeString rest(text, behind);
      text.truncate(behind);
      return text.toUpper(root) + rest.toLower(root);
    }
    default: {
      text.toLower(root);
      bool inWord = false;
      icu::UnicodeString result;
      for (int at = 0; at < text.length(); at = text.moveIndex32(at, 1)) {
        const UChar32 letter = text.char32At(at);
        const bool blank = u_isspace(letter);
        result += !inWord && !blank ? icu::UnicodeString(letter).toUpper(root) : icu::UnicodeString(letter);
        inWord = !blank;
      }
      return result;
    }
  }
}

}  // namespace

std::u16string odInLetterCase(std::u16string_view text, int letterCase) {
  if (letterCase < kUpper || letterCase > kTitle) return std::u16string(text);
  const icu::UnicodeString shown =
      inCase(icu::UnicodeString(text.data(), static_cast<int>(text.size())), letterCase);
  return {shown.getBuffer(), static_cast<std::size_t>(shown.length())};
}
