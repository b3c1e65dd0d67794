#include <gtest/gtest.h>

#include <algorithm>

#include "mtext/entity/decode_entity.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/serialize.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbSymbolTable.h"
#include "tests/mtext/geom_laws.h"
#include "tests/od/dxf/sample_drawings.h"

// The laws of texts, over every multi-line text of every drawing that there is.

namespace mtext {
namespace {

/// Calls `check` with each multi-line text of all blocks of all drawings.
template <class Check>
void in_every_text(const Check& check) {
  std::size_t count = 0;
  for (const auto& file : sample_drawings()) {
    const OdDbDatabasePtr database = OdDbDatabase::readFile(file);
    for (const OdDbObjectId& block : odOpen<OdDbSymbolTable>(database->getBlockTableId())->records()) {
      for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(block)->entities()) {
        const OdDbMTextPtr text = odOpen<OdDbMText>(id);
        if (!text) continue;
        SCOPED_TRACE(file.filename().string() + " " + id.handle().ascii().toUtf8());
        check(text);
        ++count;
      }
    }
  }
  EXPECT_GT(count, 0U);
}

/// As the entity is drawn and edited: also in a style that its drawing lacks.
geom_multitext laid_out(const OdDbMTextPtr& entity) {
  const entity_contents contents = contents_of(entity);
  const mtext_size_finder finder{OdDbDatabasePtr(entity->database())};
  return decode(contents.text.str(), drawn_mtext_format(entity), drawn_convert_info(entity), finder,
                contents.fields);
}

multitext parsed(const std::u16string& codes, const format::string& base) {
  multitext text;
  parse(codes, base, text, fields_map());
  return text;
}

/// Neither heights in drawing units nor stacks nor shape fonts: the codes that writing changes.
bool comes_back(const std::u16string& codes) {
  const multitext text = parsed(codes, format::string());
  return std::none_of(text.parts.begin(), text.parts.end(), [](const part& each) {
    return each.type() == part_stack || each.format.height_kind == 0 || each.format.is_shx;
  });
}

}  // namespace

TEST(DrawingLaws, what_was_written_once_is_written_the_same_again) {
  std::size_t checked = 0;
  in_every_text([&](const OdDbMTextPtr& entity) {
    const std::u16string codes = contents_of(entity).text.str();
    if (!comes_back(codes)) return;
    const format::string base = drawn_mtext_format(entity);
    const auto written = [&](const std::u16string& text) {
      return serialize(parsed(text, base), base, mtext_convert_info(entity).height);
    };
    const std::u16string once = written(codes);
    EXPECT_EQ(written(once), once);
    ++checked;
  });
  EXPECT_GT(checked, 0U);
}

TEST(DrawingLaws, dispose_twice_changes_nothing) {
  in_every_text([](const OdDbMTextPtr& entity) { expect_dispose_again_changes_nothing(laid_out(entity)); });
}

TEST(DrawingLaws, lines_and_columns_cover_the_parts_without_gap_or_overlap) {
  in_every_text([](const OdDbMTextPtr& entity) { expect_lines_and_columns_cover(laid_out(entity)); });
}

TEST(DrawingLaws, insert_then_erase_restores_parts_marks_and_layout) {
  text_generator random(21);
  in_every_text([&](const OdDbMTextPtr& entity) {
    geom_multitext text = laid_out(entity);
    add_marks(text, random);
    for (const std::size_t at : {std::size_t{0}, random.below(text.parts.size() + 1), text.parts.size()})
      expect_insert_then_erase_restores(text, random.text(10), at);
  });
}

TEST(DrawingLaws, two_halves_appended_give_the_text) {
  text_generator random(22);
  in_every_text([&](const OdDbMTextPtr& entity) {
    const geom_multitext text = laid_out(entity);
    expect_halves_give_the_text(text, random.below(text.parts.size() + 1));
  });
}

TEST(DrawingLaws, every_mark_stays_in_range_under_any_sequence_of_edits) {
  text_generator random(23);
  in_every_text([&](const OdDbMTextPtr& entity) { expect_marks_stay_in_range(laid_out(entity), random); });
}

}  // namespace mtext
