#include "od/dxf/johab.h"

#include <array>

namespace dxf {
namespace {

constexpr int kNone = -2;   // the five bits mean nothing
constexpr int kEmpty = -1;  // the syllable has no such part

// Which leading consonant, vowel and trailing consonant the five bits mean, in Unicode's order.
constexpr std::array<int, 32> kLeading = {
    kNone, kEmpty, 0,  1,  2,  3,     4,     5,     6,     7,     8,     9,     10,    11,    12,    13,
    14,    15,     16, 17, 18, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone};
constexpr std::array<int, 32> kVowel = {kNone, kNone, kEmpty, 0,     1,  2,     3,     4,  kNone, kNone, 5,
                                        6,     7,     8,      9,     10, kNone, kNone, 11, 12,    13,    14,
                                        15,    16,    kNone,  kNone, 17, 18,    19,    20, kNone, kNone};
constexpr std::array<int, 32> kTrailing = {kNone, kEmpty, 0,  1,  2,  3,  4,  5,     6,     7,    8,
                                           9,     10,     11, 12, 13, 14, 15, kNone, 16,    17,   18,
                                           19,    20,     21, 22, 23, 24, 25, 26,    kNone, kNone};

// The letters by themselves, from U+3131, for a syllable that has one part only.
constexpr std::array<char16_t, 19> kLeadingLetters = {0x3131, 0x3132, 0x3134, 0x3137, 0x3138, 0x3139, 0x3141,
                                                      0x3142, 0x3143, 0x3145, 0x3146, 0x3147, 0x3148, 0x3149,
                                                      0x314A, 0x314B, 0x314C, 0x314D, 0x314E};
constexpr std::array<char16_t, 27> kTrailingLetters = {0x3131, 0x3132, 0x3133, 0x3134, 0x3135, 0x3136, 0x3137,
                                                       0x3139, 0x313A, 0x313B, 0x313C, 0x313D, 0x313E, 0x313F,
                                                       0x3140, 0x3141, 0x3142, 0x3144, 0x3145, 0x3146, 0x3147,
                                                       0x3148, 0x314A, 0x314B, 0x314C, 0x314D, 0x314E};

char16_t syllable(unsigned code) {
  const int leading = kLeading[code >> 10 & 31];
  const int vowel = kVowel[code >> 5 & 31];
  const int trailing = kTrailing[code & 31];
  if (leading == kNone || vowel == kNone || trailing == kNone) return 0;
  if (leading >= 0 && vowel >= 0)
    return static_cast<char16_t>(0xAC00 + (leading * 21 + vowel) * 28 + trailing + 1);
  if (leading >= 0 && trailing < 0) return kLeadingLetters[static_cast<std::size_t>(leading)];
  if (leading < 0 && vowel >= 0 && trailing < 0) return static_cast<char16_t>(0x314F + vowel);
  if (leading < 0 && vowel < 0 && trailing >= 0) return kTrailingLetters[static_cast<std::size_t>(trailing)];
  return 0;
}

// A symbol or a Chinese character: two rows of 94 of KS X 1001 share one lead byte.
char16_t symbol(const CodePage& wansung, unsigned lead, unsigned trail) {
  const bool is_lead = (lead >= 0xD9 && lead <= 0xDE) || (lead >= 0xE0 && lead <= 0xF9);
  const bool is_trail = (trail >= 0x31 && trail <= 0x7E) || (trail >= 0x91 && trail <= 0xFE);
  const bool is_letter_row = lead == 0xDA && trail >= 0xA1 && trail <= 0xD3;
  if (!is_lead || !is_trail || is_letter_row) return 0;
  const unsigned cell = trail < 0x91 ? trail - 0x31 : trail - 0x43;
  const unsigned row = (lead < 0xE0 ? 2 * (lead - 0xD9) : 2 * lead - 0x197) + (cell < 94 ? 0 : 1);
  return wansung.pair(static_cast<unsigned char>(0xA1 + row), static_cast<unsigned char>(0xA1 + cell % 94));
}

}  // namespace

std::shared_ptr<const CodePage> make_johab(const CodePage& wansung) {
  auto page = std::make_shared<CodePage>();
  for (unsigned lead = 0x84; lead < 0xFA; ++lead) {
    for (unsigned trail = 0x31; trail < 0xFF; ++trail) {
      const char16_t character = lead <= 0xD3 ? syllable(lead << 8 | trail) : symbol(wansung, lead, trail);
      if (character)
        page->map(static_cast<unsigned char>(lead), static_cast<unsigned char>(trail), character);
    }
  }
  return page;
}

}  // namespace dxf
