#pragma once

#include <string>

#include "mtext/geom_multitext.h"
#include "mtext/letters_dictionary.h"
#include "tests/conformance/text_json.h"
#include "tests/mtext/stub_finder.h"

namespace conformance {

/// What the steps of one `geom` request work on.
struct geom_subject {
  mtext::geom_multitext text;
  mtext::format::string base;
  mtext::marks::letters_dictionary dictionary;
  mtext::stub_finder finder;
};

/// One step: takes its arguments, gives its result, throws what the library throws.
using geom_step = json (*)(geom_subject& subject, const json& in);

/// The steps by name, a table each; null if there is none of that name.
geom_step find_edit_step(const std::string& name);
geom_step find_mark_step(const std::string& name);
geom_step find_format_step(const std::string& name);
geom_step find_numbering_step(const std::string& name);

}  // namespace conformance
