#pragma once

#include <cstddef>

#include "desk/batch/batch_journal.h"

/// What a batch came to so far.
struct BatchTotals {
  std::size_t drawings = 0;  ///< all that there are
  std::size_t changed = 0;
  std::size_t unchanged = 0;
  std::size_t failed = 0;
  std::size_t texts = 0;  ///< texts that changed

  std::size_t done() const { return changed + unchanged + failed; }

  /// Counts one more drawing.
  void count(DrawingOutcome outcome, std::size_t changed_texts) {
    changed += outcome == DrawingOutcome::changed;
    unchanged += outcome == DrawingOutcome::unchanged;
    failed += outcome == DrawingOutcome::failed;
    texts += changed_texts;
  }
};
