#include "desk/batch/batch_worker.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <nlohmann/json.hpp>

#include "desk/batch/batch_options.h"
#include "desk/batch/carry_out.h"
#include "desk/batch/digest.h"
#include "desk/batch/text_changes.h"
#include "desk/document/drawing_file.h"
#include "desk/program/exit_code.h"
#include "od/dxf/staged_save.h"

namespace {

using json = nlohmann::ordered_json;
namespace fs = std::filesystem;

/// Nobody would take up what is written when the batch has gone.
void goWith(pid_t parent) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) std::_Exit(kExitRefused);
}

void tellReasons(const CarriedOut& outcome) {
  for (const auto* sentences : {&outcome.messages, &outcome.reasons})
    for (const std::string& sentence : *sentences) std::cerr << sentence << '\n';
}

bool staysWhereItIs(const BatchWorkerOptions& options) {
  std::error_code absent;
  return fs::equivalent(options.drawing, options.target, absent);
}

/// Stages the new drawing where it is wanted; its digest.
std::string keep(const OdDbDatabase& drawing, const std::string& source, const BatchWorkerOptions& options) {
  const std::string bytes = drawing.writeBytes();
  const std::string result = digestOf(bytes);
  if (!options.target.empty() && (result != source || !staysWhereItIs(options)))
    dxf::stage_save(options.target, bytes);
  return result;
}

}  // namespace

int runBatchWorker(const BatchWorkerOptions& options) {
  goWith(options.parent);
  const std::string source = fileDigest(options.drawing);
  const OdDbDatabasePtr drawing = openDrawing(options.drawing);
  const std::vector<DrawingText> before = textsOf(*drawing);
  const CarriedOut outcome = carryOut(options.order, drawing);
  if (!outcome.is_done) {
    tellReasons(outcome);
    return kExitRefused;
  }
  json report{{"messages", outcome.messages}, {"changes", textChanges(before, textsOf(*drawing))}};
  report["source"] = source;
  report["result"] = keep(*drawing, source, options);
  std::cout << report.dump() << std::flush;
  return std::cout ? kExitDone : kExitFileError;
}
