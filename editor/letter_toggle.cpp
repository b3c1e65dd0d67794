#include "editor/letter_toggle.h"

#include "editor/editable.h"

namespace editing {

namespace {

using field = boost::logic::tribool mtext::format::string_partial::*;

field field_of(letter_toggle which) {
  using mtext::format::string_partial;
  switch (which) {
    case letter_toggle::bold:
      return &string_partial::bold;
    case letter_toggle::italic:
      return &string_partial::italic;
    case letter_toggle::underline:
      return &string_partial::underline;
    case letter_toggle::overline:
      return &string_partial::overline;
  }
  return nullptr;
}

}  // namespace

boost::logic::tribool state_of(const mtext::format::string_partial& format, letter_toggle which) {
  return format.*field_of(which);
}

bool toggle(ExMTextEditable& text, letter_toggle which) {
  const bool all_have_it = static_cast<bool>(state_of(text.shownFormat(), which));
  const bool now = !all_have_it;
  mtext::format::string_partial change;
  change.*field_of(which) = now;
  text.applyFormat(change);
  return now;
}

}  // namespace editing
