#include "desk/batch/earlier_run.h"

#include "desk/batch/digest.h"
#include "od/dxf/staged_save.h"

EarlierRun earlierRun(const DrawingJob& job, const JournalEntry& entry, bool in_place) {
  if (entry.outcome == DrawingOutcome::failed) return EarlierRun::nothing;
  if (!in_place && fileDigest(job.file) != entry.source) return EarlierRun::nothing;
  const std::string present = fileDigest(job.target);
  if (present == entry.result) return EarlierRun::done;
  // What was not changed then may be done again whatever it is now.
  if (in_place && entry.outcome == DrawingOutcome::unchanged) return EarlierRun::nothing;
  if (in_place && present != entry.source) return EarlierRun::overtaken;
  return fileDigest(dxf::staged_path(job.target)) == entry.result ? EarlierRun::noted : EarlierRun::nothing;
}
