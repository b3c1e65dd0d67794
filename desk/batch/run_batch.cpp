#include "desk/batch/run_batch.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <iostream>

#include "desk/batch/batch_options.h"
#include "desk/batch/batch_run.h"
#include "desk/batch/order_script.h"
#include "desk/batch/progress_text.h"
#include "desk/program/exit_code.h"
#include "desk/program/file_error.h"
#include "desk/program/usage_error.h"
#include "desk/script/script_reader.h"

namespace {

namespace fs = std::filesystem;
using Clock = BatchProgress::Clock;

/// Width of the terminal that standard error is, 0 if it is none.
std::size_t terminalColumns() {
  if (!::isatty(STDERR_FILENO)) return 0;
  constexpr std::size_t kUsual = 80;
  struct winsize size {};
  if (::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return kUsual;
  return size.ws_col;
}

/// What is wrong with the order is told once, and not by each drawing.
void checkOrder(const BatchOrder& order) {
  try {
    orderScript(order);
    const TextFilter filter(order.filter);
  } catch (const ScriptError& error) {
    throw UsageError(error.what());
  } catch (const std::invalid_argument& error) {
    throw UsageError(error.what());
  }
}

void makeFolders(const std::vector<DrawingJob>& jobs) {
  for (const DrawingJob& job : jobs) {
    std::error_code failure;
    fs::create_directories(job.target.parent_path(), failure);
    if (failure)
      throw FileError(job.target.parent_path(), "the folder cannot be made (" + failure.message() + ").");
  }
}

std::uintmax_t bytesOf(const std::vector<DrawingJob>& jobs) {
  std::uintmax_t bytes = 0;
  for (const DrawingJob& job : jobs) bytes += job.size;
  return bytes;
}

void summarize(const BatchOptions& options, const BatchTotals& totals, Clock::duration time) {
  std::cerr << withCommas(totals.done()) << " of " << withCommas(totals.drawings) << " drawings done"
            << (options.dry_run ? ", nothing written: " : ": ") << withCommas(totals.changed) << " changed, "
            << withCommas(totals.unchanged) << " unchanged, " << withCommas(totals.failed)
            << " failed; texts changed: " << withCommas(totals.texts)
            << "; time: " << clockTime(std::chrono::ceil<std::chrono::seconds>(time)) << ".\n";
  const bool left = totals.done() < totals.drawings || totals.failed > 0;
  if (left && !options.report.empty() && !options.dry_run)
    std::cerr << "The same command with --resume does what is left.\n";
}

}  // namespace

int runBatch(const BatchOptions& options) {
  checkOrder(options.order);
  const std::vector<DrawingJob> jobs = planJobs(options);
  if (!options.dry_run) makeFolders(jobs);
  BatchRecord record(options, jobs);
  const Clock::time_point start = Clock::now();
  BatchProgress progress(std::cerr, terminalColumns(), bytesOf(jobs), start);
  BatchRun(options, jobs, record, progress).run();
  const Clock::duration time = Clock::now() - start;
  summarize(options, record.totals(), time);
  record.close(std::chrono::duration<double>(time).count());
  const BatchTotals& totals = record.totals();
  return totals.failed == 0 && totals.done() == totals.drawings ? kExitDone : kExitRefused;
}
