#pragma once

#include <chrono>
#include <cstdint>
#include <ostream>
#include <string>

#include "desk/batch/batch_totals.h"

/// Shows how far a batch is: on a terminal one line that is drawn anew, elsewhere a line now and then. What
/// is done counts by the bytes of the drawings, so that a few large ones don't deceive.
class BatchProgress {
 public:
  using Clock = std::chrono::steady_clock;

  /// `columns` is the width of the terminal that `out` writes to; 0 for what is none.
  BatchProgress(std::ostream& out, std::size_t columns, std::uintmax_t bytes, Clock::time_point now);

  /// So many bytes more are done. Those of drawings that an earlier run did say nothing of the speed.
  void add(std::uintmax_t bytes, bool by_earlier_run);
  /// Shows the state if that is due.
  void show(const BatchTotals& totals, Clock::time_point now);
  /// Writes a sentence above the line of the progress.
  void tell(const std::string& sentence);
  /// Takes the line of the progress away.
  void end();

 private:
  std::string text(const BatchTotals& totals, Clock::time_point now) const;

  std::ostream& m_out;
  std::size_t m_columns;
  double m_all;
  double m_done = 0;
  double m_done_before = 0;
  Clock::time_point m_start;
  Clock::time_point m_shown;
  bool m_has_line = false;
};
