#pragma once

#include <cstddef>
#include <string>
#include <vector>

/// The texts that are measured: made of the same words on every machine and in every run.
namespace benchmarks {

/// How often the look of a text changes.
enum class density { plain, typical, dense };

/// The characters from one change of the look to the next; 0 for a text without changes.
std::size_t characters_per_code(density formatting);

/// How a run of a text differs from the text around it.
enum class look { base, red, bold, higher };

/// How much higher the letters of `look::higher` are.
inline constexpr double higher_factor = 1.25;

/// A run of equal look, as positions in `sample_text::letters`.
struct look_run {
  std::size_t begin;
  std::size_t end;
  look shown;
};

/// One text in the two forms that the contestants read.
struct sample_text {
  /// What a reader of the text sees. Paragraphs end with a line feed; there is one about every 400 letters.
  std::u16string letters;
  /// The runs of `letters` that do not have the base look, in their order.
  std::vector<look_run> runs;
  /// The same text as a format-code string.
  std::u16string codes;
};

/// A text of `size` letters. The word list and the sequence are fixed.
sample_text make_sample_text(std::size_t size, density formatting);

/// A piece of text without any break, about as long as a line: its width is the width at which all
/// contestants break their lines.
inline constexpr char16_t sample_line[] = u"the door of the pump room is hung on steel frame number four";

}  // namespace benchmarks
