#include "commands/letter_case/case_of_contents.h"
#include "od/field/field_markers.h"

std::u16string case_of_line(std::u16string_view codes, case_mode mode) {
  case_state state(mode);
  std::u16string changed;
  for (const auto& [text, field] : odSplitAtReferences(codes, kOdChildReference)) {
    changed += in_case(text, state);
    if (!field) continue;
    changed += field->in(codes);
    in_case(u' ', state);
  }
  return changed;
}
