#include "mtext/letters_dictionary.h"

namespace mtext::marks {

const letters_dictionary& default_letters() {
  static const letters_dictionary english{
      {u"eng", u"English", u"abcdefghijklmnopqrstuvwxyz", u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"}};
  return english;
}

}  // namespace mtext::marks
