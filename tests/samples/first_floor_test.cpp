#include "samples/first_floor/first_floor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "od/dxf/atomic_save.h"
#include "od/dxf/file.h"

namespace {

TEST(FirstFloor, the_committed_drawing_is_what_the_program_makes) {
  EXPECT_EQ(dxf::load_bytes(SCRIBE_SOURCE_DIR "/samples/first-floor.dxf"), samples::first_floor())
      << "Run make_samples in the root of the tree and look at the drawing before you commit it.";
}

TEST(FirstFloor, every_handle_is_unique_and_every_pointer_names_an_object) {
  const dxf::File file = dxf::File::read(samples::first_floor(), "first-floor.dxf");
  std::set<dxf::Handle> handles{0};
  for (const dxf::Record& record : file.records()) {
    if (record.handle()) {
      EXPECT_TRUE(handles.insert(record.handle()).second) << record.handle();
    }
  }
  for (const dxf::Record& record : file.records()) {
    for (std::size_t i = 0; i < record.size(); ++i) {
      const int code = record[i].code();
      if ((code >= 330 && code <= 369) || code == 390) {
        EXPECT_TRUE(handles.contains(record.get_handle(i))) << record.type() << " " << code;
      }
    }
  }
}

TEST(FirstFloor, names_of_layers_styles_and_blocks_are_in_their_tables) {
  const dxf::File file = dxf::File::read(samples::first_floor(), "first-floor.dxf");
  std::set<std::u16string> names;
  for (const dxf::Record& record : file.records()) {
    if (record.is("LAYER") || record.is("STYLE") || record.is("BLOCK_RECORD"))
      names.insert(record.string_or(2, record.whole(), u""));
  }
  for (const dxf::Record& record : file.records()) {
    const bool is_entity =
        record.subclass("AcDbEntity").has_value() && record.handle() && !record.is("SECTION");
    if (!is_entity) continue;
    for (const int code : {7, 8}) {
      const auto name = record.find(code, record.whole());
      EXPECT_TRUE(!name || names.contains(record.get_string(*name))) << record.type() << " " << code;
    }
    EXPECT_TRUE(!record.is("INSERT") || names.contains(record.string_or(2, record.whole(), u"")));
  }
}

TEST(FirstFloor, shows_every_kind_of_text) {
  const dxf::File file = dxf::File::read(samples::first_floor(), "first-floor.dxf");
  std::set<std::int64_t> horizontal;
  int rotated = 0;
  int columns = 0;
  std::set<std::string_view> types;
  for (const dxf::Record& record : file.records()) {
    types.insert(record.type());
    if (record.is("TEXT")) horizontal.insert(record.int_or(72, record.whole(), 0));
    if (record.is("MTEXT")) rotated += record.find(11, *record.subclass("AcDbMText")).has_value();
    if (record.is("MTEXT")) columns += record.embedded_object().has_value();
  }
  EXPECT_EQ(horizontal, (std::set<std::int64_t>{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(rotated, 2);
  EXPECT_EQ(columns, 1);
  for (const char* type :
       {"MTEXT", "TEXT", "ATTDEF", "ATTRIB", "INSERT", "ARC", "CIRCLE", "LINE", "LWPOLYLINE"})
    EXPECT_TRUE(types.contains(type)) << type;
}

}  // namespace
