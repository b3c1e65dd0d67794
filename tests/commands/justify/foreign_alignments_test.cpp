#include <gtest/gtest.h>

#include <iostream>

#include "commands/justify/justify_rows.h"
#include "editor/text_justify.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/od/db/sample_drawings.h"

// A drawing of another program with a text in each justification, whose first points nobody worked out.

namespace {

const std::filesystem::path kDrawing = SCRIBE_SOURCE_DIR "/../shared/data/r2004_text_alignments.dxf";

std::vector<OdDbTextPtr> texts_of(OdDbDatabase& database) {
  std::vector<OdDbTextPtr> texts;
  const auto space = odCast<OdDbBlockTableRecord>(database.getModelSpaceId().openObject());
  for (const OdDbObjectId& id : space->entities())
    if (const auto text = odCast<OdDbText>(id.openObject(OdDb::kForWrite))) texts.push_back(text);
  return texts;
}

OdGeExtents3d ink_of(OdDbText& text) {
  OdGiRecorder recorder;
  recorder.record(text);
  return recorder.extents();
}

}  // namespace

TEST(ForeignAlignments, every_text_goes_to_each_of_the_fifteen_and_back_without_moving) {
  if (!std::filesystem::exists(kDrawing)) {
    std::cout << kDrawing << " is absent, the samples of other tests have to do\n";
    return;
  }
  const OdDbDatabasePtr database = OdDbDatabase::readFile(kDrawing);
  const auto texts = texts_of(*database);
  ASSERT_EQ(texts.size(), 16u);
  for (const OdDbTextPtr& text : texts) {
    const OdDb::TextHorzMode horizontal = text->horizontalMode();
    const OdDb::TextVertMode vertical = text->verticalMode();
    const OdGeExtents3d before = ink_of(*text);
    for (const justify_row& row : justify_rows()) {
      ApplyTextJustify(text, row.horizontal, row.vertical);
      EXPECT_NEAR(ink_of(*text).minPoint().distanceTo(before.minPoint()), 0, 1e-9);
      ApplyTextJustify(text, horizontal, vertical);
      EXPECT_NEAR(ink_of(*text).minPoint().distanceTo(before.minPoint()), 0, 1e-9);
      EXPECT_NEAR(ink_of(*text).maxPoint().distanceTo(before.maxPoint()), 0, 1e-9);
    }
  }
}
