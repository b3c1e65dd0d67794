#pragma once

#include <map>
#include <optional>

#include "desk/batch/batch_journal.h"
#include "desk/batch/batch_totals.h"
#include "desk/batch/drawing_job.h"
#include "desk/batch/drawing_result.h"

struct BatchOptions;

/// The book of a batch: counts what comes of the drawings, and where a report is wanted notes it down and
/// writes the report in the end.
class BatchRecord {
 public:
  /// Throws what a journal throws, and FileError when the report cannot become a file.
  BatchRecord(const BatchOptions& options, const std::vector<DrawingJob>& jobs);

  /// What an earlier run noted of a drawing; null if nothing.
  const JournalEntry* earlier(const DrawingJob& job) const;
  /// Notes what came of a drawing and what a later run shall know. On the disk when this returns.
  void note(const DrawingJob& job, const DrawingResult& result);
  /// Has the report say something of a drawing that a later run shall not know: what an earlier one noted
  /// stays.
  void say(const DrawingJob& job, const DrawingResult& result);
  /// Counts a drawing that is done.
  void count(DrawingOutcome outcome, std::size_t texts) { m_totals.count(outcome, texts); }
  const BatchTotals& totals() const { return m_totals; }

  /// Writes the report after so many seconds. Throws FileError.
  void close(double seconds);

 private:
  nlohmann::ordered_json reportLine(const DrawingJob& job) const;

  const BatchOptions& m_options;
  const std::vector<DrawingJob>& m_jobs;
  nlohmann::ordered_json m_order;
  std::optional<BatchJournal> m_journal;
  std::map<std::filesystem::path, nlohmann::ordered_json> m_said;  ///< by target
  BatchTotals m_totals;
};
