#pragma once

#include <nlohmann/json.hpp>
#include <string>

#include "desk/batch/batch_journal.h"
#include "desk/batch/drawing_job.h"

struct WorkerEnd;

/// What came of one drawing.
struct DrawingResult {
  DrawingOutcome outcome = DrawingOutcome::failed;
  std::string reason;                                                 ///< why it failed, as one line
  std::string source;                                                 ///< digest of the drawing that was read
  std::string result;                                                 ///< digest of the new drawing
  nlohmann::ordered_json changes = nlohmann::ordered_json::array();   ///< a member for each changed text
  nlohmann::ordered_json messages = nlohmann::ordered_json::array();  ///< what the command line said
  double seconds = 0;
  std::size_t peak_bytes = 0;
};

/// What a drawing came to when its process has ended.
DrawingResult resultOf(const DrawingJob& job, const WorkerEnd& end);

/// A drawing that failed for a reason.
DrawingResult failedFor(std::string reason);

/// The result as a line of the journal, which also goes to the report.
nlohmann::ordered_json lineOf(const DrawingJob& job, const DrawingResult& result);
