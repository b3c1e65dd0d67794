#include <gtest/gtest.h>

#include <iostream>

#include "host/key_code.h"
#include "host/windowless/application.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/editor/edited_drawing.h"
#include "tests/od/db/sample_drawings.h"

namespace {

/// The drawings of other programs, and those of the project.
std::vector<std::filesystem::path> drawings() {
  auto files = foreignDrawings();
  if (files.empty()) std::cout << "The drawings of other programs are not here; going on with samples/.\n";
  const std::filesystem::path samples = SCRIBE_SOURCE_DIR "/samples";
  for (const auto& entry : std::filesystem::directory_iterator(samples))
    if (entry.path().extension() == ".dxf") files.push_back(entry.path());
  return files;
}

std::vector<OdDbObjectId> multi_line_texts(OdDbDatabase& database) {
  std::vector<OdDbObjectId> found;
  const auto blocks = odCast<OdDbSymbolTable>(database.getBlockTableId().openObject());
  for (const OdDbObjectId& block : blocks->records())
    for (const OdDbObjectId& id : odCast<OdDbBlockTableRecord>(block.openObject())->entities())
      if (odCast<OdDbMText>(id.openObject())) found.push_back(id);
  return found;
}

/// Opens a session on each text of each drawing and calls `edit` in it.
template <class Edit>
void in_every_text(const Edit& edit) {
  int count = 0;
  for (const auto& file : drawings()) {
    const auto database = OdDbDatabase::readFile(file);
    database->setTextLayout(std::make_shared<mtext::mtext_layout>());
    WindowlessApplication application(database);
    for (const OdDbObjectId& id : multi_line_texts(*database)) {
      SCOPED_TRACE(file.filename().string() + " " + id.handle().ascii().toUtf8());
      const auto text = odCast<OdDbMText>(id.openObject(OdDb::kForWrite));
      smart_edit session(application.document());
      session.beginMTextEdit(text);
      edit(application, session, *text);
      ++count;
    }
    EXPECT_EQ(database->writeBytes(), bytesOf(file)) << file;
  }
  EXPECT_GT(count, 0);
}

}  // namespace

TEST(ForeignDrawings, accepting_every_text_unchanged_keeps_every_byte) {
  in_every_text([](WindowlessApplication&, smart_edit& session, OdDbMText&) {
    session.finishEdit(/*accept=*/true, /*force=*/false);
  });
}

TEST(ForeignDrawings, typing_and_undoing_in_every_text_keeps_every_byte) {
  in_every_text([](WindowlessApplication& application, smart_edit& session, OdDbMText&) {
    application.document().messages().offer({.number = WM_CHAR, .code = u'x'});
    session.undoStep();
    session.finishEdit(/*accept=*/true, /*force=*/false);
  });
}

TEST(ForeignDrawings, every_text_stands_in_its_session_where_its_entity_draws_it) {
  in_every_text([](WindowlessApplication& application, smart_edit& session, OdDbMText& text) {
    OdGiRecorder entity, edited;
    text.setVisibility(OdDb::kVisible);
    entity.record(text);
    text.setVisibility(OdDb::kInvisible);
    edited.record(session.editable(), OdGiDefaultContext(), &application.document().view().gsView());
    const auto drawn = edited.extents(), wanted = entity.extents();
    ASSERT_EQ(drawn.isValidExtents(), wanted.isValidExtents());
    if (!wanted.isValidExtents() || text.backgroundFill() || text.showBorders()) return;
    const double tolerance = 1e-6 * text.textHeight();
    EXPECT_NEAR(drawn.minPoint().x, wanted.minPoint().x, tolerance);
    EXPECT_NEAR(drawn.minPoint().y, wanted.minPoint().y, tolerance);
    EXPECT_NEAR(drawn.maxPoint().x, wanted.maxPoint().x, tolerance);
    EXPECT_NEAR(drawn.maxPoint().y, wanted.maxPoint().y, tolerance);
  });
}

TEST(ForeignDrawings, a_text_with_fields_shows_their_values_and_is_written_with_them) {
  int count = 0;
  for (const auto& file : drawings()) {
    const auto database = OdDbDatabase::readFile(file);
    WindowlessApplication application(database);
    for (const OdDbObjectId& id : multi_line_texts(*database)) {
      const auto text = odCast<OdDbMText>(id.openObject(OdDb::kForWrite));
      const auto before = odCast<OdDbField>(text->getField(u"TEXT"));
      if (!before) continue;
      SCOPED_TRACE(file.filename().string() + " " + id.handle().ascii().toUtf8());
      smart_edit session(application.document());
      session.beginMTextEdit(text);
      EXPECT_TRUE(session.editable().hasFields());
      application.document().messages().offer({.number = WM_CHAR, .code = u'x'});
      session.finishEdit(/*accept=*/true, /*force=*/false);
      EXPECT_EQ(text->contents().str().find(u"%<"), std::u16string::npos);
      EXPECT_NE(text->contents().str().find(file.filename().u16string()), std::u16string::npos);
      const auto after = odCast<OdDbField>(text->getField(u"TEXT"));
      ASSERT_TRUE(after);
      ASSERT_EQ(after->childCount(), before->childCount());
      for (int i = 0; i < after->childCount(); ++i)
        EXPECT_EQ(after->getChild(i)->fileHandle(), before->getChild(i)->fileHandle());
      ++count;
    }
  }
  if (count == 0) std::cout << "No drawing here has a text with fields.\n";
}
