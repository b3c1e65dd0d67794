#pragma once

#include <list>
#include <vector>

#include "desk/batch/batch_progress.h"
#include "desk/batch/batch_record.h"
#include "desk/batch/drawing_job.h"
#include "desk/batch/signal_watch.h"
#include "desk/batch/worker_process.h"

struct BatchOptions;

/// One run over the drawings of a batch.
class BatchRun {
 public:
  /// All have to outlive the run.
  BatchRun(const BatchOptions& options, const std::vector<DrawingJob>& jobs, BatchRecord& record,
           BatchProgress& progress);
  /// Stops what still runs; its drawings stay as they are.
  ~BatchRun();
  BatchRun(const BatchRun&) = delete;
  BatchRun& operator=(const BatchRun&) = delete;

  /// Until all drawings are done, or those that were begun when somebody wanted the end. Throws FileError
  /// when what was done cannot be noted down; drawings that were not are as they were.
  void run();

 private:
  struct Running {
    const DrawingJob* job;
    WorkerProcess process;
  };

  bool hasMore() const { return m_next < m_jobs.size() && !m_stopped; }
  void begin(const DrawingJob& job);
  void start(const DrawingJob& job);
  void takeEnded();
  void stop();

  /// Does what an earlier run left to be done without a process; true if that is all.
  bool settleEarlier(const DrawingJob& job);
  /// Puts what an earlier run staged in place.
  void finishEarlier(const DrawingJob& job, const JournalEntry& entry);
  void settle(const DrawingJob& job, DrawingResult result);
  void count(const DrawingJob& job, const DrawingResult& result);
  /// Notes the result down and puts the new drawing in its place. One that cannot be has failed.
  void keep(const DrawingJob& job, DrawingResult& result);
  bool wasChangedMeanwhile(const DrawingJob& job, const DrawingResult& result) const;

  const BatchOptions& m_options;
  const std::vector<DrawingJob>& m_jobs;
  BatchRecord& m_record;
  BatchProgress& m_progress;
  SignalWatch m_signals;
  std::list<Running> m_running;
  std::size_t m_room;
  std::size_t m_next = 0;
  bool m_stopped = false;
};
