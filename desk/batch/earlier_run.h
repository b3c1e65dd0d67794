#pragma once

#include "desk/batch/batch_journal.h"
#include "desk/batch/drawing_job.h"

/// How far an earlier run came with a drawing.
enum class EarlierRun {
  nothing,    ///< it is to be done
  noted,      ///< the new drawing is staged and noted down; it only has to be put in place
  done,       ///< the new drawing is in its place
  overtaken,  ///< the drawing was worked on in place, and is now neither the old nor the new one
};

/// What the files tell about a drawing that the journal has an entry for.
EarlierRun earlierRun(const DrawingJob& job, const JournalEntry& entry, bool in_place);
