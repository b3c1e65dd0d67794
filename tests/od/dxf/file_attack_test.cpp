#include <gtest/gtest.h>

#include <random>

#include "od/dxf/atomic_save.h"
#include "od/dxf/file.h"
#include "od/dxf/new_drawing.h"
#include "sample_drawings.h"

namespace {

using dxf::File;

std::vector<std::string> drawings() {
  std::vector<std::string> found;
  for (const auto& path : sample_drawings()) found.push_back(dxf::load_bytes(path));
  found.push_back(dxf::new_drawing(dxf::R2018).write());
  return found;
}

// Asks a record for all it has.
std::size_t read_everything(const dxf::Record& record) {
  std::size_t seen = record.handle() + record.owner();
  for (std::size_t i = 0; i < record.size(); ++i) {
    seen += record.get_string(i).size() + record.get_handle(i);
    seen +=
        record.get_double(i).has_value() + record.get_int(i).has_value() + record.get_binary(i).has_value();
  }
  seen += record.subclass("AcDbEntity").has_value() + record.embedded_object().has_value();
  return seen + record.xdata(u"ACAD").has_value() + record.application_group("ACAD_REACTORS").has_value();
}

// True if `bytes` were read; then they are written as they came.
bool survives(const std::string& bytes) {
  try {
    const File file = File::read(bytes, "plan.dxf");
    std::size_t seen = 0;
    for (const dxf::Record& record : file.records()) seen += read_everything(record);
    EXPECT_GT(seen, 0u);
    EXPECT_EQ(file.write(), bytes);
    return true;
  } catch (const dxf::Error& error) {
    EXPECT_TRUE(std::string_view(error.what()).starts_with("plan.dxf"));
    return false;
  }
}

TEST(FileAttack, a_drawing_cut_anywhere_is_read_or_refused) {
  for (const std::string& bytes : drawings()) {
    const std::size_t stride = bytes.size() / 40 + 7;
    std::size_t refused = 0;
    for (std::size_t size = 0; size < bytes.size(); size += stride)
      refused += !survives(bytes.substr(0, size));
    EXPECT_GT(refused, 20u);
  }
}

TEST(FileAttack, the_last_bytes_of_a_drawing_are_cut_one_by_one) {
  for (const std::string& bytes : drawings()) {
    if (bytes.size() > 30000) continue;
    for (std::size_t cut = 1; cut < 40; ++cut) survives(bytes.substr(0, bytes.size() - cut));
  }
}

TEST(FileAttack, flipped_bytes_are_read_or_refused) {
  std::mt19937 random(11);
  for (const std::string& bytes : drawings()) {
    const int rounds = bytes.size() > 200000 ? 4 : 20;
    for (int round = 0; round < rounds; ++round) {
      std::string damaged = bytes;
      for (int n = 0; n < 1 + round; ++n)
        damaged[random() % damaged.size()] ^= static_cast<char>(1 << random() % 8);
      survives(damaged);
    }
  }
}

TEST(FileAttack, garbage_is_refused) {
  std::mt19937 random(13);
  for (int round = 0; round < 300; ++round) {
    std::string garbage;
    for (std::size_t n = random() % 2000; n > 0; --n) garbage += static_cast<char>(random());
    EXPECT_FALSE(survives(garbage));
    EXPECT_FALSE(survives(std::string("AutoCAD Binary DXF\r\n\x1A\0", 22) + garbage));
  }
}

TEST(FileAttack, a_million_sections_within_each_other_are_refused) {
  std::string bytes;
  for (int i = 0; i < 1000000; ++i) bytes += "0\nSECTION\n";
  EXPECT_FALSE(survives(bytes));
}

}  // namespace
