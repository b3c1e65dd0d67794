#pragma once

#include "editor/letter_toggle.h"

namespace toolbar {

/// A button that is down while all selected letters have something.
struct letter_button {
  int id;
  editing::letter_toggle which;
};

inline constexpr letter_button kLetterButtons[] = {{1001, editing::letter_toggle::bold},
                                                   {1002, editing::letter_toggle::italic},
                                                   {1003, editing::letter_toggle::underline},
                                                   {1004, editing::letter_toggle::overline}};

}  // namespace toolbar
