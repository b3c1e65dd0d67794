#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/desk/cli/program.h"

/// A test of `scribe batch` with a folder of its own, `plans`, in the scratch folder.
class BatchFolder : public testing::Test {
 protected:
  BatchFolder();

  /// Copies the sample into the folder so many times, as p0.dxf, p1.dxf and so on.
  void copySamples(int count) const;
  /// The drawing is cut off in the middle.
  void damage(const std::string& name) const;
  std::string bytes(const std::string& name) const { return contentOf(folder / name); }
  /// The report, which the batch was asked to write to report.json.
  nlohmann::json report() const;
  /// The names in the folder, sorted.
  std::vector<std::string> names() const;
  /// What a drawing becomes by an order, done once.
  static std::string doneOnce(const std::string& order);

  static const std::string& sample();

  std::filesystem::path folder;
};
