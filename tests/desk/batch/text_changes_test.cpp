#include "desk/batch/text_changes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

namespace {

using json = nlohmann::ordered_json;

class TextChanges : public testing::Test {
 protected:
  template <typename Text>
  OdSmartPtr<Text> open(std::u16string_view plain) {
    const auto found = std::ranges::find(before, plain, &DrawingText::plain);
    return odCastOrThrow<Text>(found->id.openObject(OdDb::kForWrite));
  }
  json changes() { return textChanges(before, textsOf(*drawing)); }

  OdDbDatabasePtr drawing = OdDbDatabase::readFile(SCRIBE_SOURCE_DIR "/samples/first-floor.dxf");
  std::vector<DrawingText> before = textsOf(*drawing);
};

TEST_F(TextChanges, are_none_in_an_untouched_drawing) { EXPECT_EQ(changes(), json::array()); }

TEST_F(TextChanges, tell_a_text_before_and_after) {
  open<OdDbText>(u"Lobby")->setTextString(u"50%%%");
  EXPECT_EQ(changes(), json::parse(R"([{"handle": "B6", "kind": "TEXT", "layer": "ROOMS",
                                        "before": {"contents": "Lobby", "plain": "Lobby"},
                                        "after": {"contents": "50%%%", "plain": "50%"}}])"));
}

TEST_F(TextChanges, hold_what_only_looks_different) {
  open<OdDbText>(u"Lobby")->setRotation(1);
  ASSERT_EQ(changes().size(), 1U);
  EXPECT_EQ(changes()[0]["before"], changes()[0]["after"]);
}

TEST_F(TextChanges, hold_what_is_gone_and_what_is_new) {
  open<OdDbText>(u"Lobby")->erase();
  const auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(drawing.get());
  text->setContents(u"{\\H2x;New}");
  odCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().openObject(OdDb::kForWrite))
      ->appendOdDbEntity(text.get());
  const json found = changes();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0]["before"], json());
  EXPECT_EQ(found[0]["after"]["plain"], "New");
  EXPECT_EQ(found[1]["handle"], "B6");
  EXPECT_EQ(found[1]["after"], json());
}

}  // namespace
