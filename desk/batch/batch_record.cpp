#include "desk/batch/batch_record.h"

#include "desk/batch/batch_options.h"
#include "desk/batch/batch_report.h"
#include "desk/batch/order_json.h"
#include "desk/program/file_error.h"

namespace {

namespace fs = std::filesystem;

/// A run that changes nothing must not touch the journal of one that does.
fs::path journalPath(const BatchOptions& options) {
  return options.report.string() + (options.dry_run ? ".dry-run" : ".journal");
}

}  // namespace

BatchRecord::BatchRecord(const BatchOptions& options, const std::vector<DrawingJob>& jobs)
    : m_options(options), m_jobs(jobs), m_order(orderJson(options)) {
  m_totals.drawings = jobs.size();
  if (options.report.empty()) return;
  if (fs::is_directory(options.report)) throw FileError(options.report, "the report cannot be written.");
  if (options.dry_run) fs::remove(journalPath(options));
  m_journal.emplace(journalPath(options), m_order,
                    options.resume ? BatchJournal::Start::resume : BatchJournal::Start::afresh);
}

const JournalEntry* BatchRecord::earlier(const DrawingJob& job) const {
  return m_options.resume ? m_journal->find(job.target) : nullptr;
}

void BatchRecord::note(const DrawingJob& job, const DrawingResult& result) {
  if (m_journal) m_journal->add(job.target, lineOf(job, result));
}

void BatchRecord::say(const DrawingJob& job, const DrawingResult& result) {
  m_said[job.target] = lineOf(job, result);
}

nlohmann::ordered_json BatchRecord::reportLine(const DrawingJob& job) const {
  if (const auto said = m_said.find(job.target); said != m_said.end()) return said->second;
  if (const JournalEntry* const entry = m_journal->find(job.target)) return m_journal->read(*entry);
  return {{"file", pathInJson(job.file)}, {"outcome", "not done"}};
}

void BatchRecord::close(double seconds) {
  if (!m_journal) return;
  if (m_totals.done() == m_totals.drawings) m_journal->finish();
  writeReport(m_options.report, {m_order, m_totals, m_options.dry_run, seconds}, m_jobs,
              [this](const DrawingJob& job) { return reportLine(job); });
  if (m_options.dry_run) fs::remove(journalPath(m_options));
}
