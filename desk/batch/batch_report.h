#pragma once

#include <filesystem>
#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "desk/batch/batch_totals.h"
#include "desk/batch/drawing_job.h"

/// What the report of a batch begins with.
struct ReportHead {
  const nlohmann::ordered_json& order;
  const BatchTotals& totals;
  bool dry_run = false;
  double seconds = 0;
};

/// What the report says of a drawing.
using ReportLine = std::function<nlohmann::ordered_json(const DrawingJob& job)>;

/// Writes the report as one JSON document, drawing by drawing, so that it need not fit into memory; the old
/// report stays until the new one is whole. Throws FileError.
void writeReport(const std::filesystem::path& file, const ReportHead& head,
                 const std::vector<DrawingJob>& jobs, const ReportLine& line);
