#include "desk/batch/batch_progress.h"

#include "desk/batch/progress_text.h"

namespace {

constexpr std::chrono::seconds kBetweenLines{10};
constexpr const char* kClearLine = "\r\x1B[K";

}  // namespace

BatchProgress::BatchProgress(std::ostream& out, std::size_t columns, std::uintmax_t bytes,
                             Clock::time_point now)
    : m_out(out), m_columns(columns), m_all(static_cast<double>(bytes)), m_start(now), m_shown(now) {}

void BatchProgress::add(std::uintmax_t bytes, bool by_earlier_run) {
  (by_earlier_run ? m_done_before : m_done) += static_cast<double>(bytes);
}

void BatchProgress::show(const BatchTotals& totals, Clock::time_point now) {
  if (m_columns > 0) {
    const double part = m_all > 0 ? (m_done + m_done_before) / m_all : 1;
    m_out << kClearLine << progressBar(part, text(totals, now), m_columns - 1) << std::flush;
    m_has_line = true;
  } else if (now - m_shown >= kBetweenLines) {
    m_out << text(totals, now) << std::endl;
    m_shown = now;
  }
}

void BatchProgress::tell(const std::string& sentence) {
  end();
  m_out << sentence << std::endl;
}

void BatchProgress::end() {
  if (m_has_line) m_out << kClearLine << std::flush;
  m_has_line = false;
}

std::string BatchProgress::text(const BatchTotals& totals, Clock::time_point now) const {
  return progressText(totals, timeLeft(m_done, m_all - m_done_before, now - m_start));
}
