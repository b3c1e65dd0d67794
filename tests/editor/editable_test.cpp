#include <gtest/gtest.h>

#include "od/db/OdDbMText.h"
#include "od/db/OdDbMemoryDwgFiler.h"
#include "od/db/OdDbMemoryDxfFiler.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/editor/edited_text.h"
#include "tests/mtext/stub_finder.h"

namespace {

ExMTextEditablePtr new_editable() {
  auto text = ExMTextEditable::createObject();
  text->setFinder(std::make_shared<mtext::stub_finder>());
  return text;
}

struct : OdGiDefaultContext {
  OdCmEntityColor layerColor(const OdString&) const override { return OdCmEntityColor::fromIndex(3); }
} const green_layers;

}  // namespace

TEST(Editable, its_class_record_names_it) {
  const OdRxClass* record = ExMTextEditable::desc();
  EXPECT_EQ(odrxFindClass(u"ExMTextEditable"), record);
  EXPECT_EQ(record->name(), OdString(u"ExMTextEditable"));
  EXPECT_EQ(record->dxfName(), OdString(u"EXMTEXTEDITABLE"));
  EXPECT_EQ(record->appName(), OdString(u"MTextEdit|Description: edit-dialog"));
  EXPECT_EQ(record->myParent(), OdDbEntity::desc());
  EXPECT_EQ(record->getClassVersion(), 23);
  EXPECT_EQ(record->getMaintenanceVersion(), 0);
  EXPECT_EQ(record->proxyFlags(), 3071U);
  EXPECT_EQ(new_editable()->isA(), record);
}

TEST(Editable, a_dwg_round_trip_keeps_contents_and_text_height_and_rebuilds_the_geometry) {
  auto text = edited_text::on_codes("a{\\C1;b}\\Pc");
  text.text().setTextHeight(7, /*keep_runs=*/true);
  OdDbMemoryDwgFiler filer;
  text.text().dwgOut(&filer);
  filer.rewind();
  const auto read = new_editable();
  EXPECT_EQ(read->dwgIn(&filer), eOk);
  EXPECT_EQ(read->contentsText(), text.text().contentsText());
  EXPECT_EQ(read->textHeight(), 7);
  EXPECT_EQ(read->lineCount(), 2U);
}

TEST(Editable, reading_takes_the_place_of_the_text_before) {
  auto text = edited_text::on_codes("first");
  OdDbMemoryDwgFiler filer;
  edited_text::on_codes("second\\Pline").text().dwgOut(&filer);
  filer.rewind();
  text.text().dwgIn(&filer);
  EXPECT_EQ(text.text().contents(), OdString(u"second\\Pline"));
  EXPECT_EQ(text.drawn(), "|second¶line");
}

TEST(Editable, is_found_by_its_own_class_and_by_those_above_it_and_by_no_other) {
  const auto text = new_editable();
  const auto found_as = [&](const OdRxClass* wanted) {
    return OdSmartPtr<OdRxObject>(text->queryX(wanted), kOdRxObjAttach).get();
  };
  EXPECT_EQ(found_as(ExMTextEditable::desc()), text.get());
  EXPECT_EQ(found_as(OdDbEntity::desc()), text.get());
  EXPECT_EQ(found_as(OdDbMText::desc()), nullptr);
}

TEST(Editable, writes_its_marker_its_contents_and_its_height_to_dxf) {
  auto text = edited_text::on_codes("ab");
  OdDbMemoryDxfFiler filer;
  text.text().dxfOut(&filer);
  EXPECT_EQ(filer.groupCount(), 3U);
  filer.rewind();
  ASSERT_TRUE(filer.atSubclassData(u"ExMTextEditable"));
  EXPECT_EQ(filer.nextItem(), 71);
  EXPECT_EQ(filer.rdString(), OdString(u"ab"));
  EXPECT_EQ(filer.nextItem(), 74);
  EXPECT_EQ(filer.rdDouble(), 2.5);
}

TEST(Editable, without_a_drawing_is_measured_and_drawn_with_fonts_all_the_same) {
  const auto text = ExMTextEditable::createObject();
  text->setContents(u"ab\\Pc");
  text->load();
  EXPECT_EQ(text->lineCount(), 2U);
  EXPECT_GT(text->text().parts[0].size.advance, 0);
  OdGiRecorder recorder;
  recorder.record(*text);
  EXPECT_FALSE(recorder.primitives().empty());
}

TEST(Editable, a_dxf_round_trip_keeps_contents_and_text_height) {
  auto text = edited_text::on_codes("a\\Pc");
  text.text().setTextHeight(7, /*keep_runs=*/true);
  OdDbMemoryDxfFiler filer;
  text.text().dxfOut(&filer);
  filer.rewind();
  const auto read = new_editable();
  EXPECT_EQ(read->dxfIn(&filer), eOk);
  EXPECT_EQ(read->contentsText(), text.text().contentsText());
  EXPECT_EQ(read->textHeight(), 7);
}

TEST(Editable, dxf_reading_returns_69_when_the_subclass_marker_is_not_found) {
  OdDbMemoryDxfFiler filer;
  filer.wrString(71, u"a");
  EXPECT_EQ(new_editable()->dxfIn(&filer), 69);
}

TEST(Editable, in_draft_mode_no_glyphs_are_drawn) {
  edited_text text("ab c|");
  text.text().setDraft(true);
  OdGiRecorder recorder;
  recorder.record(text.text());
  ASSERT_EQ(recorder.primitives().size(), 3U);
  for (const auto& box : recorder.primitives()) {
    EXPECT_EQ(box.kind, OdGiPrimitive::kPolyline);
    EXPECT_EQ(box.contours[0].size(), 5U);
  }
}

TEST(Editable, a_part_with_colour_index_256_follows_the_layer_s_colour) {
  auto text = edited_text::on_codes("{\\C256;a}{\\C5;b}");
  text.text().setDraft(true);
  text.text().setColorIndex(1);
  OdGiRecorder recorder;
  recorder.record(text.text(), green_layers);
  ASSERT_EQ(recorder.primitives().size(), 2U);
  EXPECT_EQ(recorder.primitives()[0].traits.color(), 3);
  EXPECT_EQ(recorder.primitives()[1].traits.color(), 5);
}

TEST(Editable, a_part_without_a_colour_takes_the_entity_s_and_one_with_a_true_colour_its_own) {
  auto text = edited_text::on_codes("a{\\c255;b}");
  text.text().setDraft(true);
  text.text().setColorIndex(1);
  OdGiRecorder recorder;
  recorder.record(text.text());
  ASSERT_EQ(recorder.primitives().size(), 2U);
  EXPECT_EQ(recorder.primitives()[0].traits.color(), 1);
  EXPECT_EQ(recorder.primitives()[1].traits.trueColor(), OdCmEntityColor(255, 0, 0));
}

TEST(Editable, trailing_breaks_do_not_appear_in_the_line_text) {
  edited_text text("ab¶cd↵e|");
  EXPECT_EQ(text.text().lineText(0), u"ab");
  EXPECT_EQ(text.text().lineText(1), u"cd");
  EXPECT_EQ(text.text().lineText(2), u"e");
}

TEST(Editable, a_line_beyond_the_lines_is_an_error) {
  edited_text text("ab|");
  try {
    text.text().lineText(1);
    FAIL() << "no exception";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "geom_multitext::line: mtext has not enough lines");
  }
  EXPECT_THROW(text.text().linePosition(1), OdError_InvalidIndex);
}

TEST(Editable, turns_about_its_normal) {
  const auto text = new_editable();
  text->setRotation(1.5707963267948966);
  EXPECT_NEAR(text->direction().y, 1, 1e-12);
  text->setNormal({0, 0, -1});
  EXPECT_NEAR(text->direction().dotProduct(text->normal()), 0, 1e-12);
}
