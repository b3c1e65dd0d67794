#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/desk/cli/batch_folder.h"
#include "tests/desk/cli/running_program.h"

namespace {

/// A drawing whose report is long: so many texts that all change.
std::string manyTexts(int count) {
  std::ostringstream drawing;
  drawing << "0\nSECTION\n2\nENTITIES\n";
  for (int i = 0; i < count; ++i)
    drawing << "0\nTEXT\n8\n0\n10\n0\n20\n0\n40\n2.5\n1\nRoom number " << i << '\n';
  drawing << "0\nENDSEC\n0\nEOF\n";
  return drawing.str();
}

class BatchMemory : public BatchFolder {
 protected:
  /// The most memory that a batch over so many drawings had, its processes for drawings left aside; bytes.
  std::size_t peakOver(int drawings) const {
    const std::string drawing = manyTexts(5000);
    for (int i = 0; i < drawings; ++i) writeFile(folder / (std::to_string(i) + ".dxf"), drawing);
    RunningProgram batch(scratch(""), {"batch", "TCase tOggle", "plans", "--in-place", "--report",
                                       "report.json", "--jobs", "1"});
    std::size_t peak = 0;
    while (!batch.wait(std::chrono::milliseconds(2))) peak = std::max(peak, batch.peakBytes());
    EXPECT_EQ(batch.wait(), 0);
    EXPECT_EQ(report()["totals"]["texts"], 5000 * drawings);
    return peak;
  }
};

}  // namespace

TEST_F(BatchMemory, does_not_grow_with_the_number_of_drawings) {
  const std::size_t few = peakOver(2);
  const std::size_t many = peakOver(12);
  EXPECT_GT(few, 0U);
  EXPECT_LT(many, few + few / 4);
}
