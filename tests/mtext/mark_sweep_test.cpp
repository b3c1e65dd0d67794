#include "mtext/mark_sweep.h"

#include <gtest/gtest.h>

#include <random>

#include "mtext/marks.h"

namespace mtext::marks {
namespace {

TEST(MarkSweep, answers_as_a_search_for_each_position_does) {
  std::mt19937 random(20241121);
  for (int round = 0; round < 200; ++round) {
    mark_list marks;
    for (std::size_t i = random() % 12; i > 0; --i) {
      const std::size_t begin = random() % 30;
      const std::size_t end = begin + random() % 10;
      if (random() % 4 == 0) {
        marks.push_back(new selection(begin, end));
      } else {
        marks.push_back(new solid(begin, end, true));
      }
    }
    mark_sweep<solid> sweep(marks);
    for (std::size_t at = 0; at < 45; at += random() % 3) {
      ASSERT_EQ(sweep.at(at), find_solid(marks, at)) << "round " << round << ", position " << at;
    }
  }
}

}  // namespace
}  // namespace mtext::marks
