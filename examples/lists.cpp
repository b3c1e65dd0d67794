#include <iostream>

#include "fixed_pitch_finder.h"
#include "mtext/decode.h"
#include "mtext/dispose.h"
#include "mtext/marks.h"
#include "mtext/numbering.h"
#include "mtext/serialize.h"
#include "od/base/unicode.h"

std::u16string plain(const mtext::geom_multitext& text, std::size_t first, std::size_t last) {
  std::u16string result;
  for (std::size_t i = first; i < last; ++i)
    mtext::serialize_raw(result, text.parts[i].part(), /*tilde_spaces=*/false);
  return result;
}

void print_labels(const mtext::geom_multitext& text) {
  for (const mtext::marks::mark& mark : text.marks)
    if (const auto* label = dynamic_cast<const mtext::marks::numbering*>(&mark))
      std::cout << "label at " << label->begin << ": " << odToUtf8(plain(text, label->begin, label->end - 1))
                << '\n';  // the last part under the mark is the tab
}

void renumber(mtext::geom_multitext& text, const mtext::string_size_finder& finder) {
  const mtext::marks::letters_dictionary& letters = mtext::marks::default_letters();
  mtext::marks::update_numberings(text.marks, letters);  // counts
  mtext::update_every_numbering(text, finder, letters);  // writes the labels
  mtext::dispose(text);
}

int main() {
  const fixed_pitch_finder finder;
  mtext::format::string base;
  base.height = 2.5;
  base.height_kind = 0;  // drawing units
  mtext::geom_multitext text = mtext::decode(u"a.\tDoors\\Pb.\tWindows\\Pc.\tStairs", base,
                                             mtext::convert_info(), finder, mtext::fields_map());
  mtext::mark_numberings(text, mtext::marks::default_letters());
  print_labels(text);

  // A caret in the word Stairs, and a selection over the paragraph of the windows.
  mtext::marks::set_selections({mtext::marks::selection(24), mtext::marks::selection(9, 19)}, text.marks);
  const mtext::marks::selection windows = mtext::marks::selections_of(text.marks).back();
  text.erase(windows, /*drop_empty=*/true);
  renumber(text, finder);

  print_labels(text);
  std::cout << "the caret went along to " << mtext::marks::selections_of(text.marks).front().caret() << '\n';
  std::cout << odToUtf8(mtext::encode(text, base, base.height)) << '\n';
}
