#include "desk/batch/batch_run.h"

#include <unistd.h>

#include <iostream>
#include <system_error>
#include <thread>

#include "desk/batch/batch_options.h"
#include "desk/batch/change_listing.h"
#include "desk/batch/digest.h"
#include "desk/batch/earlier_run.h"
#include "desk/batch/worker_words.h"
#include "od/dxf/error.h"
#include "od/dxf/staged_save.h"

namespace {

constexpr std::chrono::milliseconds kNoTime{0};
constexpr std::chrono::milliseconds kBetweenLooks{200};

std::size_t roomFor(int jobs) {
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  return jobs > 0 ? static_cast<std::size_t>(jobs) : cores;
}

}  // namespace

BatchRun::BatchRun(const BatchOptions& options, const std::vector<DrawingJob>& jobs, BatchRecord& record,
                   BatchProgress& progress)
    : m_options(options),
      m_jobs(jobs),
      m_record(record),
      m_progress(progress),
      m_room(roomFor(options.jobs)) {}

BatchRun::~BatchRun() {
  for (Running& running : m_running) {
    running.process.end();
    dxf::drop_save(running.job->target);
  }
}

void BatchRun::run() {
  while (hasMore() || !m_running.empty()) {
    const bool has_room = hasMore() && m_running.size() < m_room;
    if (has_room) begin(m_jobs[m_next++]);
    if (m_signals.wait(has_room ? kNoTime : kBetweenLooks)) stop();
    takeEnded();
    m_progress.show(m_record.totals(), BatchProgress::Clock::now());
  }
  m_progress.end();
}

void BatchRun::begin(const DrawingJob& job) {
  if (!settleEarlier(job)) start(job);
}

void BatchRun::start(const DrawingJob& job) {
  const BatchWorkerOptions worker{.order = m_options.order,
                                  .drawing = job.file,
                                  .target = m_options.dry_run ? std::filesystem::path() : job.target,
                                  .parent = ::getpid()};
  try {
    m_running.push_back({&job, WorkerProcess(workerWords(worker), m_signals.blockedInChildren())});
  } catch (const std::system_error& error) {
    settle(job, failedFor(std::string("Its process could not be started: ") + error.what() + "."));
  }
}

void BatchRun::takeEnded() {
  for (auto at = m_running.begin(); at != m_running.end();) {
    const std::optional<WorkerEnd> end = at->process.poll();
    if (end) settle(*at->job, resultOf(*at->job, *end));
    at = end ? m_running.erase(at) : std::next(at);
  }
}

void BatchRun::stop() {
  if (m_stopped)
    for (const Running& running : m_running) running.process.kill();
  else
    m_progress.tell(
        "No more drawings are begun; those that are worked on will end. Once more stops them, too.");
  m_stopped = true;
}

bool BatchRun::settleEarlier(const DrawingJob& job) {
  const JournalEntry* const entry = m_record.earlier(job);
  switch (entry ? earlierRun(job, *entry, m_options.in_place) : EarlierRun::nothing) {
    case EarlierRun::nothing:
      return false;
    case EarlierRun::noted:
      finishEarlier(job, *entry);
      return true;
    case EarlierRun::done:
      m_record.count(entry->outcome, entry->texts);
      m_progress.add(job.size, /*by_earlier_run=*/true);
      return true;
    case EarlierRun::overtaken:
      const DrawingResult failed =
          failedFor("It was changed by somebody else since an earlier run, which may have done it.");
      m_record.say(job, failed);
      count(job, failed);
      return true;
  }
  return false;
}

void BatchRun::finishEarlier(const DrawingJob& job, const JournalEntry& entry) {
  try {
    dxf::finish_save(job.target);
    m_record.count(entry.outcome, entry.texts);
    m_progress.add(job.size, /*by_earlier_run=*/true);
  } catch (const dxf::Error& error) {
    settle(job, failedFor(error.what()));
  }
}

void BatchRun::settle(const DrawingJob& job, DrawingResult result) {
  keep(job, result);
  if (result.outcome == DrawingOutcome::failed && !m_options.dry_run) dxf::drop_save(job.target);
  if (m_options.dry_run && m_options.report.empty()) listChanges(std::cout, job, result);
  count(job, result);
}

void BatchRun::count(const DrawingJob& job, const DrawingResult& result) {
  if (result.outcome == DrawingOutcome::failed)
    m_progress.tell(job.file.string() + " failed: " + result.reason);
  m_record.count(result.outcome, result.changes.size());
  m_progress.add(job.size, /*by_earlier_run=*/false);
}

void BatchRun::keep(const DrawingJob& job, DrawingResult& result) {
  if (wasChangedMeanwhile(job, result)) result = failedFor("It was changed by somebody else meanwhile.");
  m_record.note(job, result);
  const bool staged = result.outcome == DrawingOutcome::changed ||
                      (result.outcome == DrawingOutcome::unchanged && !m_options.in_place);
  if (!staged || m_options.dry_run) return;
  try {
    dxf::finish_save(job.target);
  } catch (const dxf::Error& error) {
    result = failedFor(error.what());
    m_record.note(job, result);
  }
}

bool BatchRun::wasChangedMeanwhile(const DrawingJob& job, const DrawingResult& result) const {
  return m_options.in_place && !m_options.dry_run && result.outcome == DrawingOutcome::changed &&
         fileDigest(job.file) != result.source;
}
