#include "od/dxf/new_drawing.h"

#include <gtest/gtest.h>

#include <set>

#include "od/base/OdError.h"
#include "od/dxf/header_variables.h"

namespace {

using dxf::File;
using dxf::Record;

class NewDrawing : public ::testing::TestWithParam<dxf::Version> {
 protected:
  File file = dxf::new_drawing(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Versions, NewDrawing,
                         ::testing::Values(dxf::R12, dxf::R2000, dxf::R2004, dxf::R2007, dxf::R2010,
                                           dxf::R2013, dxf::R2018),
                         [](const auto& version) {
                           return "AC" + std::to_string(static_cast<int>(version.param));
                         });

const Record* table_entry(const File& file, std::string_view table, std::string_view name) {
  for (const Record& record : file.records()) {
    if (!record.is(table) || !record.find(2, record.whole())) continue;
    if (record[*record.find(2, record.whole())].value() == name) return &record;
  }
  return nullptr;
}

TEST_P(NewDrawing, reads_back_to_the_same_bytes) {
  const std::string bytes = file.write();
  const File again = File::read(bytes, "plan.dxf");
  EXPECT_EQ(again.version(), GetParam());
  EXPECT_EQ(again.write(), bytes);
}

TEST_P(NewDrawing, has_the_sections_of_its_version_in_order) {
  std::vector<std::string> names;
  for (const dxf::Section& section : file.sections()) {
    names.push_back(section.name);
    EXPECT_NE(section.end, nullptr) << section.name;
  }
  if (GetParam() == dxf::R12) {
    EXPECT_EQ(names, (std::vector<std::string>{"HEADER", "TABLES", "BLOCKS", "ENTITIES"}));
  } else {
    EXPECT_EQ(names,
              (std::vector<std::string>{"HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"}));
  }
  EXPECT_TRUE(file.records().last()->is("EOF"));
}

TEST_P(NewDrawing, tables_say_how_many_entries_they_have) {
  const Record* table = nullptr;
  int entries = 0;
  for (const Record& record : file.records()) {
    if (record.is("TABLE")) {
      table = &record;
      entries = 0;
    } else if (record.is("ENDTAB")) {
      ASSERT_NE(table, nullptr);
      EXPECT_EQ(table->int_or(70, table->whole(), -1), entries);
      table = nullptr;
    } else {
      ++entries;
    }
  }
}

TEST_P(NewDrawing, has_the_entries_that_every_drawing_needs) {
  const bool old = GetParam() == dxf::R12;
  EXPECT_NE(table_entry(file, "LAYER", "0"), nullptr);
  EXPECT_NE(table_entry(file, "APPID", "ACAD"), nullptr);
  EXPECT_NE(table_entry(file, "STYLE", old ? "STANDARD" : "Standard"), nullptr);
  EXPECT_NE(table_entry(file, "LTYPE", old ? "CONTINUOUS" : "Continuous"), nullptr);
  EXPECT_NE(table_entry(file, "VPORT", old ? "*ACTIVE" : "*Active"), nullptr);
  EXPECT_NE(table_entry(file, "DIMSTYLE", old ? "STANDARD" : "Standard"), nullptr);
  if (old) return;
  for (const char* name : {"ByBlock", "ByLayer"}) EXPECT_NE(table_entry(file, "LTYPE", name), nullptr);
  for (const char* name : {"*Model_Space", "*Paper_Space"}) {
    EXPECT_NE(table_entry(file, "BLOCK_RECORD", name), nullptr);
    EXPECT_NE(table_entry(file, "BLOCK", name), nullptr);
  }
}

TEST_P(NewDrawing, handles_are_unique_and_below_the_seed) {
  std::set<dxf::Handle> handles;
  for (const Record& record : file.records()) {
    const dxf::Handle handle = record.handle();
    if (handle) {
      EXPECT_TRUE(handles.insert(handle).second) << record.type() << " " << handle;
    }
  }
  const dxf::Handle seed = dxf::HeaderVariables(file).handle_or("$HANDSEED", 0);
  EXPECT_GT(seed, handles.empty() ? 0 : *handles.rbegin());
}

TEST_P(NewDrawing, every_pointer_names_an_object) {
  std::set<dxf::Handle> handles{0};
  for (const Record& record : file.records()) handles.insert(record.handle());
  for (const Record& record : file.records()) {
    for (std::size_t i = 0; i < record.size(); ++i) {
      const int code = record[i].code();
      if ((code >= 330 && code <= 369) || code == 390) {
        EXPECT_TRUE(handles.contains(record.get_handle(i))) << record.type() << " " << code;
      }
    }
  }
}

TEST_P(NewDrawing, layouts_and_block_records_name_each_other) {
  int layouts = 0;
  for (const Record& layout : file.records()) {
    if (!layout.is("LAYOUT")) continue;
    ++layouts;
    const dxf::Handle block = layout.handle_or(330, *layout.subclass("AcDbLayout"), 0);
    for (const Record& record : file.records()) {
      if (record.is("BLOCK_RECORD") && record.handle() == block) {
        EXPECT_EQ(record.handle_or(340, *record.subclass("AcDbBlockTableRecord"), 0), layout.handle());
      }
    }
  }
  EXPECT_EQ(layouts, GetParam() == dxf::R12 ? 0 : 2);
}

TEST(NewDrawingVersion, other_versions_are_refused) { EXPECT_THROW(dxf::new_drawing(dxf::R14), OdError); }

}  // namespace
