#include <iostream>

#include "fixed_pitch_finder.h"
#include "mtext/decode.h"
#include "mtext/ensure.h"
#include "mtext/escape.h"
#include "mtext/numbering.h"
#include "od/base/unicode.h"

int main() {
  // A text is never refused: what is no code is text.
  std::cout << odToUtf8(mtext::unformat_mtext(uR"({\Hoops; \Z1; and no end)")) << '\n';

  mtext::geom_multitext text = mtext::decode(u"Door", {}, {}, fixed_pitch_finder(), {});
  try {
    text.erase(3, 7, /*drop_empty=*/true);
  } catch (const std::invalid_argument& error) {
    std::cout << error.what() << '\n';
  }

  // A label of the eighth alphabet, where there is only one.
  text.marks.push_back(new mtext::marks::numbering(0, 0, {{.value = 1, .kind = 1, .alphabet = 7}}));
  try {
    mtext::marks::update_numberings(text.marks, mtext::marks::default_letters());
  } catch (const mtext::ensure_error& error) {
    std::cout << error.what() << '\n';
  }

  // Text that a person typed, made safe to stand between codes.
  std::cout << odToUtf8(mtext::escape_mtext(u"{C:\\doors}\n2 leaves", /*keep_line_feeds=*/true)) << '\n';
}
