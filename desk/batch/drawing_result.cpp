#include "desk/batch/drawing_result.h"

#include "desk/batch/worker_process.h"
#include "desk/program/exit_code.h"

namespace {

using json = nlohmann::ordered_json;

/// A complaint that begins with the drawing's name, which is told in front of it anyway.
std::string withoutName(const std::string& complaint, const DrawingJob& job) {
  const std::string name = job.file.string();
  const bool is_told = complaint.starts_with(name + ": ") || complaint.starts_with(name + ", ");
  return is_told ? complaint.substr(name.size() + 2) : complaint;
}

}  // namespace

DrawingResult failedFor(std::string reason) {
  DrawingResult failed;
  failed.reason = std::move(reason);
  return failed;
}

DrawingResult resultOf(const DrawingJob& job, const WorkerEnd& end) {
  DrawingResult result = failedFor(withoutName(end.complaint, job));
  result.seconds = end.seconds;
  result.peak_bytes = end.peak_bytes;
  if (end.exit_code != kExitDone) return result;
  json told = json::parse(end.output, nullptr, /*allow_exceptions=*/false);
  if (!told.is_object() || !told.contains("result")) {
    result.reason = "Its process said nothing that can be understood.";
    return result;
  }
  result.reason.clear();
  result.source = told["source"];
  result.result = told["result"];
  result.changes = std::move(told["changes"]);
  result.messages = std::move(told["messages"]);
  result.outcome = result.source == result.result ? DrawingOutcome::unchanged : DrawingOutcome::changed;
  return result;
}

json lineOf(const DrawingJob& job, const DrawingResult& result) {
  json line{{"file", pathInJson(job.file)}, {"outcome", nameOf(result.outcome)}};
  if (result.outcome == DrawingOutcome::failed) {
    line["reason"] = result.reason;
  } else {
    line["source"] = result.source;
    line["result"] = result.result;
  }
  line["seconds"] = result.seconds;
  line["peak_bytes"] = result.peak_bytes;
  line["texts"] = result.changes.size();
  if (!result.messages.empty()) line["messages"] = result.messages;
  line["changes"] = result.changes;
  return line;
}
