#pragma once

#include <random>
#include <string>

#include "tests/mtext/decoded.h"

namespace mtext {

/// Texts and frames of all kinds, the same ones in every run.
class text_generator {
 public:
  explicit text_generator(unsigned seed) : m_random(seed) {}

  /// A number below `limit`.
  std::size_t below(std::size_t limit) { return m_random() % limit; }

  /// Up to `most` pieces of text, codes among them.
  std::u16string codes(std::size_t most) {
    static const char16_t* const pieces[] = {u"a",
                                             u"word ",
                                             u"wide mW ",
                                             u"il.,",
                                             u" ",
                                             u"   ",
                                             u"\t",
                                             u"\n",
                                             u"\\P",
                                             u"\\N",
                                             u"\\~",
                                             u"\\S1/2;",
                                             u"\\S34#5;",
                                             u"%<code>%",
                                             u"{\\H2x;big}",
                                             u"{\\H0.5x;s}",
                                             u"\\A0;",
                                             u"\\A1;",
                                             u"\\A2;",
                                             u"\\pxi-2,l3;",
                                             u"\\pxi2,l0,r1;",
                                             u"\\pxt2,c5,r9;",
                                             u"\\pxql;",
                                             u"\\pxqc;",
                                             u"\\pxqr;",
                                             u"\\pxqj;",
                                             u"\\pxqd;",
                                             u"\\pxsa1.5;",
                                             u"\\pxse1;",
                                             u"\\pxsm2;",
                                             u"\\pl12,t7;",
                                             u"{\\Ftxt|c0;shape}",
                                             u"{\\fTall|b0|i0|c0|p0;tall}"};
    std::u16string text;
    for (std::size_t i = below(most + 1); i > 0; --i) text += pieces[below(std::size(pieces))];
    return text;
  }

  convert_info info() {
    static constexpr double widths[] = {0, 5, 20, 45, 100, 1000, -10};
    convert_info made = frame(widths[below(std::size(widths))]);
    made.columns.gutter = 7;
    made.columns.kind = static_cast<std::uint32_t>(below(4));
    made.columns.heights.assign(1 + below(4), 0);
    for (double& height : made.columns.heights) height = static_cast<double>(below(6)) * 15;
    made.alignment = static_cast<std::uint32_t>(1 + below(5));
    made.vertical = static_cast<std::uint32_t>(below(3));
    made.spacing = {static_cast<std::uint32_t>(below(4)), 1.0 + static_cast<double>(below(3)) * 0.25};
    made.extents_mode = static_cast<std::uint32_t>(below(3));
    return made;
  }

  geom_multitext text(std::size_t most) {
    const std::u16string written = codes(most);
    return decoded(written, info());
  }

  /// A mark of any class somewhere in a text of `size` parts; solids cover something where they can.
  marks::mark* mark(std::size_t size) {
    const std::size_t a = below(size + 1);
    const std::size_t b = below(size + 1);
    if (a == b || below(3) == 0) return new marks::selection(a, b);
    if (below(3) == 0) return new marks::numbering(std::min(a, b), std::max(a, b), {{1, 0, 0}});
    return new marks::field(std::min(a, b), std::max(a, b), u"code");
  }

 private:
  std::mt19937 m_random;
};

}  // namespace mtext
