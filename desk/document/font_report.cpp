#include "desk/document/font_report.h"

#include "od/base/unicode.h"
#include "od/db/OdDbDatabase.h"
#include "od/fonts/OdFontLibrary.h"

namespace {

std::u16string hexadecimal(char32_t character) {
  std::u16string digits;
  for (int shift = character > 0xFFFF ? 20 : 12; shift >= 0; shift -= 4)
    digits += u"0123456789ABCDEF"[character >> shift & 0xF];
  return digits;
}

std::u16string subjectOf(const OdFontSubstitution& each) {
  switch (each.kind) {
    case OdFontSubstitution::kTypeface:
      return u"The typeface \"" + each.wanted + u"\"";
    case OdFontSubstitution::kShapeFont:
      return u"The shape font \"" + each.wanted + u"\"";
    case OdFontSubstitution::kBigFont:
      return u"The big font \"" + each.wanted + u"\"";
    case OdFontSubstitution::kCharacter:
      return u"The character U+" + hexadecimal(each.character) + u" (and maybe others), which \"" +
             each.wanted + u"\" lacks,";
  }
  return {};
}

std::u16string sentenceOf(const OdFontSubstitution& each) {
  std::u16string sentence = subjectOf(each);
  sentence += each.used.empty() ? u" is not drawn" : u" is drawn with \"" + each.used + u"\"";
  if (!each.reason.empty()) sentence += u": " + odToUtf16(each.reason);
  if (sentence.back() != u'.') sentence += u'.';
  return sentence;
}

}  // namespace

std::vector<std::u16string> substitutedFonts(const OdDbDatabase& database) {
  std::vector<std::u16string> lines;
  for (const OdFontSubstitution& each : database.fontLibrary().substitutions())
    lines.push_back(sentenceOf(each));
  return lines;
}
