#include <gtest/gtest.h>

#include <cmath>
#include <iostream>

#include "editor/smart_edit.h"
#include "host/windowless/application.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "tests/od/db/sample_drawings.h"

// Texts in columns, in both forms that drawings have for them: from R2018 on in the text itself, before as
// texts that are linked to the first.

namespace {

constexpr double kWidth = 20, kGutter = 2, kHeight = 12;

std::u16string many_words(int count) {
  std::u16string words;
  for (int i = 0; i < count; ++i) words += u"Hall and stairs ";
  return words;
}

/// What a text is set to in a column drawing.
struct column_kind {
  OdDb::ColumnType type;
  bool automatic;
  const char* name;
};

constexpr column_kind kKinds[] = {{OdDb::kStaticColumns, false, "static"},
                                  {OdDb::kDynamicColumns, true, "automatic"},
                                  {OdDb::kDynamicColumns, false, "manual"}};

OdDbMTextPtr first_text(OdDbDatabase& database, OdDb::OpenMode mode = OdDb::kForRead) {
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities())
    if (const auto text = odOpen<OdDbMText>(id, mode)) return text;
  return {};
}

OdDbDatabasePtr read(const std::string& bytes) {
  const auto database = OdDbDatabase::readBytes(bytes, "drawing");
  database->setTextLayout(std::make_shared<mtext::mtext_layout>());
  return database;
}

/// A saved drawing with one text in three columns.
std::string column_drawing(dxf::Version version, const column_kind& kind) {
  const auto database = OdDbDatabase::createEmpty(version);
  database->setTextLayout(std::make_shared<mtext::mtext_layout>());
  const auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(database.get());
  text->setTextHeight(1);
  text->setContents(many_words(30));
  text->setWidth(kWidth);
  text->setHeight(kHeight);
  text->setColumnType(kind.type);
  text->setColumnAutoHeight(kind.automatic);
  text->setColumnCount(3);
  text->setColumnWidth(kWidth);
  text->setColumnGutterWidth(kGutter);
  if (kind.type == OdDb::kDynamicColumns && !kind.automatic)
    for (int i = 0; i < 3; ++i) text->setColumnHeight(i, i < 2 ? kHeight : 0);
  odOpen<OdDbBlockTableRecord>(database->getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(text.get());
  return database->writeBytes();
}

/// A session on one text of a drawing, with a mouse in it.
struct column_session {
  column_session(const OdDbDatabasePtr& drawing, const OdDbMTextPtr& edited)
      : application(drawing), text(edited), session(application.document()) {
    const OdGePoint3d at = text->location();
    application.document().view().gsView().setView(at + OdGeVector3d{0, 0, 1}, at, {0, 1, 0}, 32, 24);
    session.beginMTextEdit(text);
  }

  void event(unsigned number, double x, double y) {
    application.document().messages().offer(
        {.number = number, .point = session.editable().frame().text_to_world() * OdGePoint3d{x, y, 0}});
  }
  /// Drags a handle; points are in text coordinates.
  void drag(OdGePoint2d from, OdGePoint2d to) {
    event(WM_LBUTTONDOWN, from.x, from.y);
    event(WM_MOUSEMOVE, to.x, to.y);
    event(WM_LBUTTONUP, to.x, to.y);
  }
  const mtext::column_settings& columns() const { return session.editable().text().info.columns; }
  double pixel() { return application.document().view().gsView().pixelSize(); }
  void accept() { session.finishEdit(/*accept=*/true, /*force=*/false); }

  WindowlessApplication application;
  OdDbMTextPtr text;
  smart_edit session;
};

/// The handles that change columns, each with a drag in a view of three columns that hang from their left.
struct column_drag {
  const char* name;
  void (*drag)(column_session& hand);
};

void drag_dot(column_session& hand) {
  const double pixel = hand.pixel(), width = hand.columns().width;
  hand.drag({width + 4.5 * pixel, 12 * pixel}, {width * 0.8, 12 * pixel});
}

void drag_overall_width(column_session& hand) {
  const double pixel = hand.pixel(), width = hand.columns().width, gutter = hand.columns().gutter;
  const double whole = 3 * (width + gutter) - gutter;
  hand.drag({whole + 10 * pixel, 16 * pixel}, {whole + 4, 16 * pixel});
}

void drag_height(column_session& hand) {
  const double height = hand.columns().heights[0];
  hand.drag({0, -height}, {0, -height * 0.9});
}

void drag_corner(column_session& hand) {
  const double pixel = hand.pixel(), width = hand.columns().width, height = hand.columns().heights[0];
  hand.drag({width - 3 * pixel, -height + 3 * pixel}, {width * 0.9, -height * 0.95});
}

constexpr column_drag kDrags[] = {{"dot", drag_dot},
                                  {"overall width", drag_overall_width},
                                  {"height", drag_height},
                                  {"corner", drag_corner}};

bool is_in_embedded_form(const std::string& bytes) {
  return bytes.find("Embedded Object") != bytes.npos && bytes.find("ACAD_MTEXT_COLUMN") == bytes.npos;
}

bool is_in_linked_form(const std::string& bytes) {
  return bytes.find("Embedded Object") == bytes.npos &&
         bytes.find("ACAD_MTEXT_COLUMN_INFO_BEGIN") != bytes.npos &&
         bytes.find("ACAD_MTEXT_COLUMNS_BEGIN") != bytes.npos;
}

void expect_equal(const mtext::column_settings& a, const mtext::column_settings& b) {
  EXPECT_NEAR(a.width, b.width, 1e-9);
  EXPECT_NEAR(a.gutter, b.gutter, 1e-9);
  EXPECT_EQ(a.kind, b.kind);
  ASSERT_EQ(a.heights.size(), b.heights.size());
  for (std::size_t i = 0; i < a.heights.size(); ++i) EXPECT_NEAR(a.heights[i], b.heights[i], 1e-9);
}

/// Calls `visit` for each form of file and each kind of columns.
template <class Visit>
void for_each_drawing(const Visit& visit) {
  for (const dxf::Version version : {dxf::R2000, dxf::R2007, dxf::R2013, dxf::R2018}) {
    for (const column_kind& kind : kKinds) {
      SCOPED_TRACE(std::string(kind.name) + " columns, version " + std::to_string(static_cast<int>(version)));
      visit(column_drawing(version, kind), version);
    }
  }
}

/// The column drawings of other programs, by the form they are in.
std::vector<std::filesystem::path> foreign_column_drawings() {
  std::vector<std::filesystem::path> found;
  for (const auto& path : foreignDrawings())
    if (path.filename().string().find("mtext_columns") != std::string::npos) found.push_back(path);
  if (found.empty()) std::cout << "The column drawings of other programs are not here.\n";
  return found;
}

std::vector<OdDbObjectId> texts_of(OdDbDatabase& database) {
  std::vector<OdDbObjectId> texts;
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities())
    if (odOpen<OdDbMText>(id)) texts.push_back(id);
  return texts;
}

}  // namespace

TEST(ColumnDrawings, a_text_in_columns_is_one_text_in_each_form_of_file) {
  for_each_drawing([](const std::string& bytes, dxf::Version version) {
    EXPECT_EQ(version < dxf::R2018, is_in_linked_form(bytes));
    EXPECT_EQ(version >= dxf::R2018, is_in_embedded_form(bytes));
    const auto database = read(bytes);
    EXPECT_EQ(texts_of(*database).size(), 1U);
    EXPECT_EQ(first_text(*database)->contents(), OdString(many_words(30)));
  });
}

TEST(ColumnDrawings, each_linked_text_says_what_its_column_shows_and_stands_there) {
  for (const column_kind& kind : kKinds) {
    SCOPED_TRACE(kind.name);
    const auto database = read(column_drawing(dxf::R2007, kind));
    const OdDbMTextPtr text = first_text(*database, OdDb::kForWrite);
    const column_session hand(database, text);
    const auto& columns = hand.session.editable().text().columns;
    const auto linked = text->linkedColumns();
    ASSERT_EQ(columns.size(), 3U);
    ASSERT_EQ(linked.size(), 2U);
    for (std::size_t i = 0; i < linked.size(); ++i) {
      const auto column = odOpen<OdDbMText>(linked[i]);
      EXPECT_FALSE(column->contents().isEmpty());
      EXPECT_NEAR(column->location().x - text->location().x, columns[i + 1].x, 1e-9);
      EXPECT_EQ(column->width(), kWidth);
    }
  }
}

TEST(ColumnDrawings, what_each_handle_changes_is_there_again_after_saving_and_in_the_same_form) {
  for_each_drawing([](const std::string& bytes, dxf::Version version) {
    for (const column_drag& each : kDrags) {
      SCOPED_TRACE(each.name);
      const auto database = read(bytes);
      column_session hand(database, first_text(*database, OdDb::kForWrite));
      const mtext::column_settings before = hand.columns();
      each.drag(hand);
      const mtext::column_settings dragged = hand.columns();
      EXPECT_TRUE(before.width != dragged.width || before.gutter != dragged.gutter ||
                  before.heights != dragged.heights);
      hand.accept();
      const std::string saved = database->writeBytes();
      EXPECT_EQ(version < dxf::R2018, is_in_linked_form(saved));
      EXPECT_EQ(version >= dxf::R2018, is_in_embedded_form(saved));
      const auto again = read(saved);
      const OdDbMTextPtr text = first_text(*again, OdDb::kForWrite);
      EXPECT_EQ(text->contents(), OdString(many_words(30)));
      const column_session opened(again, text);
      expect_equal(opened.columns(), dragged);
    }
  });
}

TEST(ColumnDrawings, a_drag_and_its_undo_leave_every_byte) {
  for_each_drawing([](const std::string& bytes, dxf::Version) {
    for (const column_drag& each : kDrags) {
      SCOPED_TRACE(each.name);
      const auto database = read(bytes);
      column_session hand(database, first_text(*database, OdDb::kForWrite));
      each.drag(hand);
      hand.session.undoStep();
      hand.accept();
      EXPECT_EQ(database->writeBytes(), bytes);
    }
  });
}

TEST(ColumnDrawings, typing_runs_on_from_column_to_column) {
  for_each_drawing([](const std::string& bytes, dxf::Version) {
    const auto database = read(bytes);
    column_session hand(database, first_text(*database, OdDb::kForWrite));
    for (const char16_t unit : std::u16string(u"A new beginning "))
      hand.application.document().messages().offer({.number = WM_CHAR, .code = unit});
    hand.accept();
    const auto again = read(database->writeBytes());
    EXPECT_EQ(first_text(*again)->contents(), OdString(u"A new beginning " + many_words(30)));
  });
}

TEST(ColumnDrawings, drawings_of_other_programs_show_their_columns_as_designed) {
  for (const auto& path : foreign_column_drawings()) {
    SCOPED_TRACE(path.filename().string());
    const auto database = OdDbDatabase::readFile(path);
    database->setTextLayout(std::make_shared<mtext::mtext_layout>());
    const auto texts = texts_of(*database);
    ASSERT_EQ(texts.size(), 3U);
    // Static columns of height 100, dynamic ones of 50, and manual ones of 20, 30 and what remains.
    const std::vector<double> heights[] = {{100, 100, 100}, {50}, {20, 30, 0}};
    for (std::size_t i = 0; i < texts.size(); ++i) {
      const column_session hand(database, odOpen<OdDbMText>(texts[i], OdDb::kForWrite));
      expect_equal(hand.columns(), {.width = 20,
                                    .gutter = 1,
                                    .kind = i == 0   ? 0U
                                            : i == 1 ? 2U
                                                     : 1U,
                                    .heights = heights[i]});
      const auto& laid_out = hand.session.editable().text().columns;
      EXPECT_EQ(laid_out.size(), 3U);
      for (std::size_t k = 0; k < laid_out.size(); ++k) EXPECT_NEAR(laid_out[k].x, 21.0 * k, 1e-9);
    }
  }
}

TEST(ColumnDrawings, drawings_of_other_programs_keep_their_form_under_every_handle) {
  for (const auto& path : foreign_column_drawings()) {
    for (std::size_t i = 0; i < 3; ++i) {
      for (const column_drag& each : kDrags) {
        SCOPED_TRACE(path.filename().string() + ", text " + std::to_string(i) + ", " + each.name);
        const auto database = read(bytesOf(path));
        const OdDbMTextPtr text = odOpen<OdDbMText>(texts_of(*database)[i], OdDb::kForWrite);
        const OdString contents = text->contents();
        column_session hand(database, text);
        each.drag(hand);
        const mtext::column_settings dragged = hand.columns();
        hand.accept();
        const std::string saved = database->writeBytes();
        EXPECT_EQ(is_in_linked_form(saved), is_in_linked_form(bytesOf(path)));
        const auto again = read(saved);
        const auto texts = texts_of(*again);
        ASSERT_EQ(texts.size(), 3U);
        EXPECT_EQ(odOpen<OdDbMText>(texts[i])->contents(), contents);
        const column_session opened(again, odOpen<OdDbMText>(texts[i], OdDb::kForWrite));
        expect_equal(opened.columns(), dragged);
      }
    }
  }
}
