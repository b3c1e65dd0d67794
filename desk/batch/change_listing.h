#pragma once

#include <ostream>

#include "desk/batch/drawing_job.h"
#include "desk/batch/drawing_result.h"

/// Prints what changed in a drawing for people: its name, and for each text handle, kind and layer, and the
/// plain text before and after.
void listChanges(std::ostream& out, const DrawingJob& job, const DrawingResult& result);
