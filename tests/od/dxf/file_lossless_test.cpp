#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include "od/dxf/atomic_save.h"
#include "od/dxf/file.h"
#include "od/dxf/new_drawing.h"
#include "sample_drawings.h"

namespace {

using dxf::File;
using dxf::Record;
using dxf::ValueType;

// Sample drawings and new ones, so that there always is something to prove on.
std::vector<std::string> drawings() {
  std::vector<std::string> found;
  for (const auto& path : sample_drawings()) found.push_back(dxf::load_bytes(path));
  for (const dxf::Version version : {dxf::R12, dxf::R2000, dxf::R2018})
    found.push_back(dxf::new_drawing(version).write());
  return found;
}

std::vector<Record*> records_of(File& file) {
  std::vector<Record*> found;
  for (Record& record : file.records()) found.push_back(&record);
  return found;
}

std::size_t common_prefix(const std::string& a, const std::string& b) {
  return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

std::size_t common_suffix(const std::string& a, const std::string& b, std::size_t most) {
  std::size_t count = 0;
  while (count < most && a[a.size() - 1 - count] == b[b.size() - 1 - count]) ++count;
  return count;
}

TEST(FileLossless, every_drawing_is_written_byte_for_byte) {
  for (const auto& path : sample_drawings()) {
    const std::string bytes = dxf::load_bytes(path);
    EXPECT_EQ(File::read(bytes, path).write(), bytes) << path;
  }
}

TEST(FileLossless, every_text_encodes_to_the_bytes_it_was_decoded_from) {
  for (const std::string& bytes : drawings()) {
    const File file = File::read(bytes, "plan.dxf");
    for (const Record& record : file.records()) {
      for (std::size_t i = 0; i < record.size(); ++i) {
        if (is_text(record[i].type())) {
          EXPECT_EQ(file.codec().encode(record.get_string(i)), record[i].value());
        }
      }
    }
  }
}

TEST(FileLossless, setting_every_value_to_itself_changes_nothing) {
  for (const std::string& bytes : drawings()) {
    File file = File::read(bytes, "plan.dxf");
    for (Record& record : file.records()) {
      for (std::size_t i = 0; i < record.size(); ++i) {
        const ValueType type = record[i].type();
        if (is_text(type)) record.set_string(i, record.get_string(i));
        if (type == ValueType::real) record.set_double(i, record.get_double(i).value());
        if (is_integer(type)) record.set_int(i, record.get_int(i).value());
        if (type == ValueType::binary) record.set_binary(i, record.get_binary(i).value());
      }
      EXPECT_FALSE(record.changed());
    }
    EXPECT_EQ(file.write(), bytes);
  }
}

TEST(FileLossless, changing_one_group_changes_only_its_value) {
  std::mt19937 random(3);
  for (const std::string& bytes : drawings()) {
    for (int round = 0; round < 8; ++round) {
      File file = File::read(bytes, "plan.dxf");
      const auto records = records_of(file);
      Record& record = *records[random() % records.size()];
      const std::size_t index = random() % record.size();
      if (record[index].code() == 0 || !is_text(record[index].type())) continue;
      const std::string_view old = record[index].value();
      record.set_string(index, u"~changed~");
      const std::string written = file.write();
      const std::size_t prefix = common_prefix(bytes, written);
      const std::size_t suffix =
          common_suffix(bytes, written, std::min(bytes.size(), written.size()) - prefix);
      EXPECT_LE(bytes.size() - prefix - suffix, old.size());
      EXPECT_LE(written.size() - prefix - suffix, std::string_view("~changed~").size());
    }
  }
}

/// An edit of a group and how to see that it holds.
struct Edit {
  Record* record;
  std::size_t index;
  double real;
  std::int64_t integer;
  std::u16string text;
  std::string data;
};

void apply(const Edit& edit) {
  const ValueType type = (*edit.record)[edit.index].type();
  if (is_text(type)) edit.record->set_string(edit.index, edit.text);
  if (type == ValueType::real) edit.record->set_double(edit.index, edit.real);
  if (is_integer(type)) edit.record->set_int(edit.index, edit.integer);
  if (type == ValueType::binary) edit.record->set_binary(edit.index, edit.data);
}

void expect_applied(const Edit& edit, const Record& record) {
  const ValueType type = record[edit.index].type();
  if (is_text(type)) {
    EXPECT_EQ(record.get_string(edit.index), edit.text);
  }
  if (type == ValueType::real) {
    EXPECT_EQ(record.get_double(edit.index), edit.real);
  }
  if (is_integer(type)) {
    EXPECT_EQ(record.get_int(edit.index), edit.integer);
  }
  if (type == ValueType::binary) {
    EXPECT_EQ(record.get_binary(edit.index), edit.data);
  }
}

TEST(FileLossless, random_edits_read_back_as_they_were_set) {
  constexpr char16_t kLetters[] = u"aZ 09^\n\t\\{};%ü";
  std::mt19937 random(5);
  for (const std::string& bytes : drawings()) {
    File file = File::read(bytes, "plan.dxf");
    const auto records = records_of(file);
    std::map<std::pair<std::size_t, std::size_t>, Edit> edits;
    for (int round = 0; round < 300; ++round) {
      const std::size_t place = random() % records.size();
      Record& record = *records[place];
      const std::size_t index = random() % record.size();
      // The marks and the version hold the drawing together.
      if (record.is("SECTION") || record[index].code() == 0) continue;
      Edit edit{&record,
                index,
                std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 64) - 32),
                static_cast<std::int64_t>(random() % 128),
                {},
                std::string(random() % 127, 'x')};
      for (std::size_t n = random() % 20; n > 0; --n)
        edit.text += kLetters[random() % (std::size(kLetters) - 1)];
      if (file.codec().escape_missing(edit.text) != edit.text) continue;
      apply(edit);
      edits.insert_or_assign({place, index}, edit);
    }
    File again = File::read(file.write(), "plan.dxf");
    const auto read_again = records_of(again);
    ASSERT_EQ(read_again.size(), records.size());
    for (const auto& [place, edit] : edits) expect_applied(edit, *read_again[place.first]);
  }
}

TEST(FileLossless, a_changed_drawing_is_written_the_same_after_reading_it_again) {
  for (const std::string& bytes : drawings()) {
    File file = File::read(bytes, "plan.dxf");
    Record& place = *file.section("ENTITIES")->end;
    Record& line = file.insert_before(&place, "LINE");
    line.insert_string(1, 8, u"0");
    line.insert_point(2, 10, {1, 2, 3});
    const std::string written = file.write();
    EXPECT_EQ(File::read(written, "plan.dxf").write(), written);
    file.records().erase(line);
    EXPECT_EQ(file.write(), bytes);
  }
}

}  // namespace
