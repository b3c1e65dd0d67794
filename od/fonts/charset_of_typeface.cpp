#include "od/fonts/charset_of_typeface.h"

#include <fontconfig/fontconfig.h>

namespace {

constexpr int kSymbols = 2, kAny = 1;

/// A character that every font of a character set has, most widespread sets first.
struct Sample {
  FcChar32 character;
  int charset;
};

constexpr Sample kSamples[] = {
    {U'A', 0},        {U'\u0416', 204}, {U'\u03B1', 161}, {U'\u05D0', 177}, {U'\u0627', 178},
    {U'\u0E01', 222}, {U'\u3042', 128}, {U'\uAC00', 129}, {U'\u4E00', 134},
};

}  // namespace

int odCharsetOfTypeface(const FcCharSet* characters, bool symbols) {
  if (symbols) return kSymbols;
  for (const Sample& sample : kSamples) {
    if (characters && FcCharSetHasChar(characters, sample.character)) return sample.charset;
  }
  return kAny;
}
