#include "tests/desk/cli/batch_folder.h"

#include <algorithm>

namespace fs = std::filesystem;

BatchFolder::BatchFolder() : folder(scratch("plans")) {
  fs::remove_all(folder);
  fs::remove_all(scratch("new"));
  for (const char* file : {"report.json", "report.json.journal"}) fs::remove(scratch(file));
  fs::create_directory(folder);
}

const std::string& BatchFolder::sample() {
  static const std::string bytes = contentOf(fs::path(SCRIBE_SOURCE_DIR) / "samples" / "first-floor.dxf");
  return bytes;
}

void BatchFolder::copySamples(int count) const {
  for (int i = 0; i < count; ++i) writeFile(folder / ("p" + std::to_string(i) + ".dxf"), sample());
}

void BatchFolder::damage(const std::string& name) const {
  const std::string whole = bytes(name);
  writeFile(folder / name, whole.substr(0, whole.size() / 2));
}

nlohmann::json BatchFolder::report() const {
  return nlohmann::json::parse(contentOf(scratch("report.json")));
}

std::vector<std::string> BatchFolder::names() const {
  std::vector<std::string> found;
  for (const auto& entry : fs::directory_iterator(folder)) found.push_back(entry.path().filename());
  std::ranges::sort(found);
  return found;
}

std::string BatchFolder::doneOnce(const std::string& order) {
  const fs::path once = scratch("once");
  fs::remove_all(once);
  fs::create_directory(once);
  writeFile(once / "p.dxf", sample());
  EXPECT_EQ(runProgram("batch '" + order + "' once/p.dxf --in-place").exit_code, 0);
  return contentOf(once / "p.dxf");
}
