#pragma once

#include <functional>

namespace mtext_test {

/// Runs `work` to its end on a thread with a stack of 256 kB: what nests on the stack does not come back.
void on_small_stack(const std::function<void()>& work);

}  // namespace mtext_test
