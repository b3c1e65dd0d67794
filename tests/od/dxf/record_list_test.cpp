#include "od/dxf/record_list.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using dxf::Record;
using dxf::RecordList;

std::unique_ptr<Record> record(std::string_view type) {
  return std::make_unique<Record>(std::make_shared<dxf::Manner>(), type);
}

std::vector<std::string_view> types(const RecordList& list) {
  std::vector<std::string_view> found;
  for (const Record& one : list) found.push_back(one.type());
  return found;
}

using Types = std::vector<std::string_view>;

TEST(RecordList, records_are_inserted_in_front_of_a_place_or_at_the_end) {
  RecordList list;
  Record& b = list.insert_before(nullptr, record("B"));
  list.insert_before(nullptr, record("C"));
  list.insert_before(&b, record("A"));
  EXPECT_EQ(types(list), (Types{"A", "B", "C"}));
  EXPECT_EQ(list.size(), 3u);
  EXPECT_EQ(list.last()->previous(), &b);
}

TEST(RecordList, a_record_that_is_taken_can_come_back) {
  RecordList list;
  list.insert_before(nullptr, record("A"));
  Record& b = list.insert_before(nullptr, record("B"));
  Record& c = list.insert_before(nullptr, record("C"));
  std::unique_ptr<Record> taken = list.take(b);
  EXPECT_EQ(types(list), (Types{"A", "C"}));
  EXPECT_EQ(taken->next(), nullptr);
  list.insert_before(&c, std::move(taken));
  EXPECT_EQ(types(list), (Types{"A", "B", "C"}));
}

TEST(RecordList, the_ends_can_be_erased) {
  RecordList list;
  Record& a = list.insert_before(nullptr, record("A"));
  Record& b = list.insert_before(nullptr, record("B"));
  list.erase(a);
  EXPECT_EQ(list.first(), &b);
  list.erase(b);
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(list.last(), nullptr);
}

TEST(RecordList, moving_keeps_the_addresses) {
  RecordList list;
  const Record& a = list.insert_before(nullptr, record("A"));
  RecordList other = std::move(list);
  EXPECT_EQ(other.first(), &a);
  RecordList third;
  third.insert_before(nullptr, record("X"));
  third = std::move(other);
  EXPECT_EQ(types(third), (Types{"A"}));
}

TEST(RecordList, a_million_records_end_without_recursion) {
  RecordList list;
  const auto manner = std::make_shared<dxf::Manner>();
  for (int i = 0; i < 1000000; ++i)
    list.insert_before(nullptr, std::make_unique<Record>(manner, std::vector<dxf::Group>{}));
  EXPECT_EQ(list.size(), 1000000u);
}

}  // namespace
