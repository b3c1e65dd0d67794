#include "desk/batch/batch_report.h"

#include <nlohmann/json.hpp>

#include "desk/program/file_error.h"
#include "tests/desk/batch/scratch_folder.h"

namespace {

using json = nlohmann::ordered_json;

class Report : public ScratchFolder {
 protected:
  void write(const std::vector<DrawingJob>& jobs) const {
    writeReport(file, {order, totals, /*dry_run=*/true, 1.5}, jobs, [](const DrawingJob& job) {
      return json{{"file", job.file.string()}, {"changes", {{{"after", "two\nlines"}}}}};
    });
  }

  std::filesystem::path file = folder / "report.json";
  json order = json::parse(R"({"command": "TCase Upper"})");
  BatchTotals totals{.drawings = 3, .changed = 1, .unchanged = 0, .failed = 1, .texts = 7};
};

TEST_F(Report, is_one_document_with_the_drawings_in_their_order) {
  write({{.file = "b.dxf"}, {.file = "a.dxf"}});
  const json report = json::parse(contentOf(file));
  EXPECT_EQ(report["order"], order);
  EXPECT_EQ(report["dry_run"], true);
  EXPECT_EQ(report["seconds"], 1.5);
  EXPECT_EQ(report["totals"], json::parse(R"({"drawings": 3, "changed": 1, "unchanged": 0, "failed": 1,
                                              "not_done": 1, "texts": 7})"));
  EXPECT_EQ(report["drawings"][0]["file"], "b.dxf");
  EXPECT_EQ(report["drawings"][1]["changes"][0]["after"], "two\nlines");
}

TEST_F(Report, takes_the_place_of_the_old_one_and_leaves_nothing_beside) {
  std::ofstream(file) << "old";
  write({});
  EXPECT_EQ(json::parse(contentOf(file))["drawings"].size(), 0U);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}

TEST_F(Report, that_cannot_be_written_is_told) {
  file = folder / "none" / "report.json";
  EXPECT_THROW(write({}), FileError);
}

}  // namespace
