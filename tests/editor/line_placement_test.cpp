#include <gtest/gtest.h>

#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/text_placement.h"
#include "tests/editor/edited_drawing.h"

// Where a single-line text stands while it is edited: where it is drawn.

namespace {

struct placed_line : edited_drawing {
  OdDbTextPtr line = odNew<OdDbText>();

  placed_line() {
    line->setDatabaseDefaults(database.get());
    line->setHeight(4);
    line->setTextString(u"Hg");
  }

  void justify(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical) {
    line->setHorizontalMode(horizontal);
    line->setVerticalMode(vertical);
    line->setPosition({10, 20, 0});
    line->setAlignmentPoint({30, 25, 0});
  }

  /// From where the entity is drawn to where its first letter stands in the session.
  double gap() {
    session.emplace(application.document());
    session->beginTextEdit(line);
    const OdDbTextPlacement drawn = odPlaceText(*line, line->textString(), *database);
    const OdGePoint3d pen = OdGeMatrix3d::planeToWorld(line->normal()) * drawn.position;
    return session->editable().linePosition(0).distanceTo(pen);
  }

  void expect_no_gaps() {
    for (const auto horizontal : {OdDb::kTextLeft, OdDb::kTextCenter, OdDb::kTextRight, OdDb::kTextAlign,
                                  OdDb::kTextMid, OdDb::kTextFit}) {
      for (const auto vertical : {OdDb::kTextBase, OdDb::kTextBottom, OdDb::kTextVertMid, OdDb::kTextTop}) {
        if (horizontal > OdDb::kTextRight && vertical != OdDb::kTextBase) continue;
        justify(horizontal, vertical);
        EXPECT_NEAR(gap(), 0, 1e-9) << horizontal << " " << vertical;
      }
    }
  }
};

}  // namespace

TEST(LinePlacement, is_that_of_the_drawn_text_for_every_justification) { placed_line().expect_no_gaps(); }

TEST(LinePlacement, is_that_of_a_turned_and_slanted_text) {
  placed_line drawing;
  drawing.line->setRotation(1);
  drawing.line->setOblique(0.3);
  drawing.line->setWidthFactor(0.8);
  drawing.expect_no_gaps();
}

TEST(LinePlacement, is_that_of_a_text_in_a_shape_font) {
  placed_line drawing;
  const auto style =
      odCast<OdDbTextStyleTableRecord>(drawing.database->getTEXTSTYLE().openObject(OdDb::kForWrite));
  style->setFont(u"", false, false, 0, 0);
  style->setFileName(u"txt");
  drawing.line->setOblique(0.3);
  drawing.expect_no_gaps();
}

TEST(LinePlacement, lets_a_backward_text_be_read_over_the_room_that_it_takes) {
  placed_line drawing;
  drawing.line->mirrorInX(true);
  drawing.justify(OdDb::kTextLeft, OdDb::kTextBase);
  const OdDbTextPlacement drawn = odPlaceText(*drawing.line, drawing.line->textString(), *drawing.database);
  EXPECT_NEAR(drawing.gap(), -drawn.spanEnd, 1e-9);
}

TEST(LinePlacement, has_the_height_and_width_that_two_points_give) {
  placed_line drawing;
  drawing.justify(OdDb::kTextAlign, OdDb::kTextBase);
  drawing.gap();
  EXPECT_GT(drawing.session->editable().textHeight(), 8);
  drawing.justify(OdDb::kTextFit, OdDb::kTextBase);
  drawing.gap();
  EXPECT_EQ(drawing.session->editable().textHeight(), 4);
  EXPECT_GT(drawing.session->editable().defaultFormat().width_factor, 2);
}
