#include "benchmarks/sample_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace benchmarks {
namespace {

constexpr std::array<std::u16string_view, 24> words{
    u"all",   u"bolt",    u"concrete", u"door",   u"each",  u"frame", u"to",    u"insulated",
    u"joint", u"level",   u"mortar",   u"number", u"of",    u"pipe",  u"room",  u"see",
    u"the",   u"ceiling", u"with",     u"wall",   u"steel", u"is",    u"every", u"foundation"};

constexpr std::size_t paragraph_length = 400;

/// A small generator of our own, so that every machine draws the same words.
class word_source {
 public:
  std::u16string_view next() {
    m_state = m_state * 6364136223846793005U + 1442695040888963407U;
    return words[(m_state >> 33U) % words.size()];
  }

 private:
  std::uint64_t m_state = 1;
};

std::u16string make_letters(std::size_t size) {
  std::u16string letters;
  word_source source;
  std::size_t paragraph_begin = 0;
  while (letters.size() < size) {
    letters += source.next();
    const bool ends = letters.size() - paragraph_begin >= paragraph_length;
    letters += ends ? u'\n' : u' ';
    if (ends) paragraph_begin = letters.size();
  }
  letters.resize(size);
  return letters;
}

/// The first half of each stretch of `step` letters looks different, in turns of three.
std::vector<look_run> make_runs(std::size_t size, std::size_t step) {
  std::vector<look_run> runs;
  if (step == 0) return runs;
  constexpr std::array looks{look::red, look::bold, look::higher};
  for (std::size_t begin = 0; begin < size; begin += step) {
    runs.push_back({begin, std::min(begin + step / 2, size), looks[runs.size() % looks.size()]});
  }
  return runs;
}

std::u16string_view code_of(look shown) {
  switch (shown) {
    case look::red:
      return u"{\\C1;";
    case look::bold:
      return u"{\\fLiberation Sans|b1|i0|c0|p34;";
    case look::higher:
      return u"{\\H1.25x;";
    case look::base:
      break;
  }
  return u"{";
}

void append_letters(std::u16string& codes, std::u16string_view letters) {
  for (char16_t letter : letters) {
    if (letter == u'\n') {
      codes += u"\\P";
    } else {
      codes += letter;
    }
  }
}

std::u16string with_codes(std::u16string_view letters, const std::vector<look_run>& runs) {
  std::u16string codes;
  std::size_t at = 0;
  for (const look_run& run : runs) {
    append_letters(codes, letters.substr(at, run.begin - at));
    codes += code_of(run.shown);
    append_letters(codes, letters.substr(run.begin, run.end - run.begin));
    codes += u'}';
    at = run.end;
  }
  append_letters(codes, letters.substr(at));
  return codes;
}

}  // namespace

std::size_t characters_per_code(density formatting) {
  switch (formatting) {
    case density::typical:
      return 60;
    case density::dense:
      return 8;
    case density::plain:
      break;
  }
  return 0;
}

sample_text make_sample_text(std::size_t size, density formatting) {
  sample_text text;
  text.letters = make_letters(size);
  text.runs = make_runs(size, characters_per_code(formatting));
  text.codes = with_codes(text.letters, text.runs);
  return text;
}

}  // namespace benchmarks
