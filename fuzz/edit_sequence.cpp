// Makes a text, then edits it and its marks as the bytes tell: seven bytes for the frame, then one for each
// step and those that the step takes.

#include "fuzz/edit_steps.h"
#include "fuzz/layout_laws.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::byte_source input(data, size);
  mtext::geom_multitext text;
  text.info = fuzz::frame(input);
  // As many steps as end within a second under the sanitizers, whatever they are.
  for (int steps = 0; steps < 100 && !input.empty(); ++steps) {
    fuzz::take_step(text, input);
    fuzz::require_marks_in_range(text);
  }
  fuzz::require_layout(text);
  return 0;
}
