#include "editor/stack_half.h"

namespace editing {

stack_half half_of(const mtext::geom_part& part) {
  constexpr std::uint32_t kCaret = 1;
  if (part.type() != mtext::part_stack) return stack_half::none;
  const auto& stack = static_cast<const mtext::geom_stack&>(part);
  if (stack.kind != kCaret || stack.numerator.empty() == stack.denominator.empty()) return stack_half::none;
  return stack.denominator.empty() ? stack_half::upper : stack_half::lower;
}

std::u16string letters_of_half(const mtext::geom_part& part) {
  if (half_of(part) == stack_half::none) return {};
  const auto& stack = static_cast<const mtext::geom_stack&>(part);
  return stack.numerator + stack.denominator;
}

}  // namespace editing
