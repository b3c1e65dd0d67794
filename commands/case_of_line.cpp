#include "commands/case_of_contents.h"
#include "commands/text_codes.h"

std::u16string case_of_line(std::u16string_view codes, case_mode mode) {
  case_state state(mode);
  std::u16string changed;
  std::size_t at = 0;
  for (const marker_range& field : field_marker_ranges(codes)) {
    changed += in_case(codes.substr(at, field.first - at), state);
    changed += codes.substr(field.first, field.last - field.first);
    in_case(u' ', state);
    at = field.last;
  }
  return changed += in_case(codes.substr(at), state);
}
