#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

struct BatchOptions;

/// One drawing of a batch.
struct DrawingJob {
  std::filesystem::path file = {};    ///< as it was named
  std::filesystem::path target = {};  ///< absolute: the file itself, or one in the folder for new drawings
  std::uintmax_t size = 0;            ///< bytes; what the progress counts by
};

/// The drawings that the options name, each once, in their order. A folder stands for all *.dxf in it and
/// below, by name; in the folder for new drawings these keep their places below it. Throws UsageError when
/// nothing is there, when two new drawings would bear one name, and when one would take the place of a
/// drawing that is read.
std::vector<DrawingJob> planJobs(const BatchOptions& options);
