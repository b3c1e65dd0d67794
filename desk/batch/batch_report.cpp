#include "desk/batch/batch_report.h"

#include <fcntl.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "desk/program/file_error.h"
#include "od/dxf/descriptor.h"
#include "od/dxf/replaced_file.h"
#include "od/dxf/staged_save.h"

namespace {

using json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr int kIndent = 2;

/// A value as it stands at some depth of a document. Line feeds within texts are escaped, so all are its own.
std::string indented(const json& value, const std::string& margin) {
  std::string text;
  for (const char unit : value.dump(kIndent, ' ', false, json::error_handler_t::replace)) {
    text += unit;
    if (unit == '\n') text += margin;
  }
  return text;
}

json totalsJson(const BatchTotals& totals) {
  return {{"drawings", totals.drawings},
          {"changed", totals.changed},
          {"unchanged", totals.unchanged},
          {"failed", totals.failed},
          {"not_done", totals.drawings - totals.done()},
          {"texts", totals.texts}};
}

void write(std::ostream& out, const ReportHead& head, const std::vector<DrawingJob>& jobs,
           const ReportLine& line) {
  out << "{\n  \"order\": " << indented(head.order, "  ")
      << ",\n  \"dry_run\": " << (head.dry_run ? "true" : "false")
      << ",\n  \"seconds\": " << json(head.seconds)
      << ",\n  \"totals\": " << indented(totalsJson(head.totals), "  ") << ",\n  \"drawings\": [";
  const char* separator = "\n    ";
  for (const DrawingJob& job : jobs) {
    out << separator << indented(line(job), "    ");
    separator = ",\n    ";
  }
  out << "\n  ]\n}\n";
}

bool flush(const fs::path& file) {
  const dxf::Descriptor written(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  return written.is_open() && ::fsync(written.number()) == 0;
}

}  // namespace

void writeReport(const fs::path& file, const ReportHead& head, const std::vector<DrawingJob>& jobs,
                 const ReportLine& line) {
  const fs::path staged = dxf::staged_path(file);
  std::ofstream out(staged, std::ios::binary);
  write(out, head, jobs, line);
  out.close();
  std::error_code failure;
  if (out && flush(staged)) {
    fs::rename(staged, dxf::real_target(file), failure);
    if (!failure) return;
  }
  fs::remove(staged, failure);
  throw FileError(file, "the report cannot be written.");
}
