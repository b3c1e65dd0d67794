#pragma once

#include <string>

/// The lines of a drawing whose groups are written one behind the other: a blank ends a line, and `~` is a
/// blank.
inline std::string lines(std::string groups) {
  for (char& c : groups) {
    if (c == ' ') c = '\n';
    if (c == '~') c = ' ';
  }
  return groups + "\n";
}
