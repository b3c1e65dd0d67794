#include "desk/texts/one_line.h"

std::string onOneLine(std::string_view text) {
  std::string line;
  for (const char unit : text) {
    if (unit == '\n') {
      line += "\\n";
    } else {
      line += unit == '\t' ? ' ' : unit;
    }
  }
  return line;
}
