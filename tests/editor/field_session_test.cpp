#include <gtest/gtest.h>

#include "editor/field_commands.h"
#include "host/field_service.h"
#include "host/key_code.h"
#include "mtext/marks.h"
#include "od/db/OdDbDictionary.h"
#include "tests/editor/edited_drawing.h"

namespace {

constexpr const char16_t* kScale = u"\\AcVar LUNITS \\f \"%lu2%pr0\"";  // shows 2
constexpr const char16_t* kName = u"\\AcVar TEXTSTYLE";                 // shows Standard

/// A drawing whose text shows fields, and a service that makes them from codes.
struct drawing_with_fields : edited_drawing {
  explicit drawing_with_fields(std::u16string_view contents) {
    text->setContents(u"");
    begin();
    session->editable().setContents(OdString(contents));
    session->editable().load();
    session->pushUndoStep(kUndoType);
    accept();
  }
  void accept() {
    session->finishEdit(/*accept=*/true, /*force=*/false);
    session.reset();
  }
  OdDbFieldPtr field() { return odCast<OdDbField>(text->getField(u"TEXT")); }
  std::string shown() { return text->contents().toUtf8(); }
  /// A point of the text over the part at an index.
  OdGePoint2d at(std::size_t index) {
    const auto& part = session->editable().text().parts[index];
    return {part.x + part.size.advance / 4, part.y};
  }

  HostGivenFields fields;
  host::OfferingFields offer{fields};
};

std::u16string with_markers(const char16_t* code) { return u"%<" + std::u16string(code) + u">%"; }

}  // namespace

TEST(FieldSession, a_field_that_was_inserted_is_written_as_a_field) {
  drawing_with_fields drawing(u"Hall");
  drawing.begin();
  drawing.fields.give(kScale);
  EXPECT_TRUE(editing::insert_field(*drawing.session));
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "2Hall");
  ASSERT_TRUE(drawing.field());
  EXPECT_EQ(drawing.field()->getFieldCode(OdDbField::kAddMarkers), OdString(with_markers(kScale) + u"Hall"));
}

TEST(FieldSession, placeholders_are_numbered_from_0_in_the_order_of_the_text) {
  drawing_with_fields drawing(with_markers(kName) + u" and " + with_markers(kScale));
  EXPECT_EQ(drawing.field()->getFieldCode(OdDbField::kFieldCode),
            OdString(u"%<\\_FldIdx 0>% and %<\\_FldIdx 1>%"));
  EXPECT_EQ(drawing.shown(), "Standard and 2");
}

TEST(FieldSession, a_text_without_changes_keeps_every_byte) {
  drawing_with_fields drawing(with_markers(kScale));
  const std::string before = drawing.bytes();
  drawing.begin();
  drawing.accept();
  EXPECT_EQ(drawing.bytes(), before);
}

TEST(FieldSession, children_that_are_still_there_keep_their_objects) {
  drawing_with_fields drawing(with_markers(kScale) + with_markers(kName) + with_markers(kScale));
  const OdDbFieldPtr before = drawing.field();
  drawing.begin();
  drawing.type(u"x");
  drawing.accept();
  const OdDbFieldPtr after = drawing.field();
  ASSERT_EQ(after->childCount(), 3);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(after->getChild(i)->fileHandle(), before->getChild(i)->fileHandle());
}

TEST(FieldSession, updating_a_field_re_reads_its_value_text) {
  drawing_with_fields drawing(with_markers(kScale));
  drawing.database->setSysVarInt(u"LUNITS", 4);
  drawing.begin();
  EXPECT_EQ(drawing.session->editable().evaluatedContentsText(), OdString(u"2"));
  EXPECT_TRUE(editing::update_field(*drawing.session, drawing.at(0)));
  EXPECT_EQ(drawing.session->editable().evaluatedContentsText(), OdString(u"4"));
  EXPECT_EQ(drawing.session->undo().run_kind(), kUndoField);
  drawing.session->undoStep();
  EXPECT_EQ(drawing.session->editable().evaluatedContentsText(), OdString(u"2"));
  drawing.session->redoStep();
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "4");
}

TEST(FieldSession, a_changed_field_takes_the_place_of_the_old_one_and_the_carets_stay) {
  drawing_with_fields drawing(u"a" + with_markers(kScale) + u"b");
  drawing.begin();
  drawing.session->editable().setSelections({mtext::marks::selection(0), mtext::marks::selection(3)});
  drawing.fields.give(with_markers(kName));
  EXPECT_TRUE(editing::change_field(*drawing.session, drawing.at(1)));
  const auto carets = drawing.session->editable().selections();
  ASSERT_EQ(carets.size(), 2U);
  EXPECT_EQ(carets[0].begin, 0U);
  EXPECT_EQ(carets[1].begin, 10U);
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "aStandardb");
  EXPECT_EQ(drawing.field()->childCount(), 1);
}

TEST(FieldSession, a_user_who_cancels_changes_nothing_and_leaves_no_step) {
  drawing_with_fields drawing(with_markers(kScale));
  drawing.begin();
  EXPECT_FALSE(editing::insert_field(*drawing.session));
  EXPECT_FALSE(editing::change_field(*drawing.session, drawing.at(0)));
  EXPECT_FALSE(drawing.session->hasChanges());
}

TEST(FieldSession, where_nobody_makes_fields_there_are_no_new_ones) {
  edited_drawing drawing;
  drawing.begin();
  EXPECT_FALSE(editing::can_make_fields());
  EXPECT_FALSE(editing::insert_field(*drawing.session));
}

TEST(FieldSession, a_field_takes_the_place_of_each_selection) {
  drawing_with_fields drawing(u"abc");
  drawing.begin();
  drawing.session->editable().setSelections({mtext::marks::selection(0, 1), mtext::marks::selection(2, 3)});
  drawing.fields.give(kScale);
  editing::insert_field(*drawing.session);
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "2b2");
  EXPECT_EQ(drawing.field()->childCount(), 2);
}

TEST(FieldSession, fields_that_became_text_leave_plain_contents_and_no_objects) {
  drawing_with_fields drawing(with_markers(kScale));
  drawing.begin();
  drawing.session->pushUndoStep(kUndoField);
  drawing.session->editable().convertFieldToText(drawing.at(0));
  drawing.type(u"!");
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "!2");
  EXPECT_TRUE(drawing.text->extensionDictionary().isNull());
}

TEST(FieldSession, a_field_that_only_became_text_is_written_so) {
  drawing_with_fields drawing(with_markers(kScale));
  drawing.begin();
  drawing.session->pushUndoStep(kUndoField);
  drawing.session->editable().convertFieldToText(drawing.at(0));
  drawing.accept();
  EXPECT_FALSE(drawing.field());
}

TEST(FieldSession, a_field_whose_evaluator_is_unknown_keeps_what_it_showed) {
  drawing_with_fields drawing(u"Hall");
  auto top = odNew<OdDbField>();
  const OdDbFieldPtr sheet = OdDbField::createFromCode(u"\\AcSm Sheet.Number \\f \"%tc1\"");
  sheet->setEvaluation({}, u"A-12", OdDbField::kSuccess);
  top->setFieldCode(u"%<\\_FldIdx 0>%", OdDbField::kTextField, {sheet});
  drawing.text->setField(u"TEXT", *top);
  drawing.begin();
  drawing.type(u"No ");
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "No A-12");
  EXPECT_EQ(drawing.field()->getFieldCode(OdDbField::kAddMarkers),
            OdString(u"No %<\\AcSm Sheet.Number \\f \"%tc1\">%"));
}

TEST(FieldSession, a_copied_field_code_that_is_pasted_is_evaluated_here) {
  drawing_with_fields drawing(u"Hall");
  auto& clipboard = drawing.application.clipboard();
  clipboard.set(clipboard.registerFormat(u"MText"), with_markers(kScale));
  drawing.begin();
  drawing.session->editable().paste(/*single_line=*/false, /*non_empty=*/false);
  drawing.session->pushUndoStep(kUndoDelete);
  drawing.accept();
  EXPECT_EQ(drawing.shown(), "2Hall");
  EXPECT_TRUE(drawing.field());
}

namespace {

/// A single-line text with a field, "{L} = 2".
OdDbTextPtr line_with_field(edited_drawing& drawing) {
  auto line = odNew<OdDbText>();
  line->setDatabaseDefaults(drawing.database.get());
  odOpen<OdDbBlockTableRecord>(drawing.database->getModelSpaceId(), OdDb::kForWrite)
      ->appendOdDbEntity(line.get());
  auto top = odNew<OdDbField>();
  top->setFieldCode(u"{L} = %<\\_FldIdx 0>%", OdDbField::kTextField,
                    {host::evaluated_field(kScale, *drawing.database)});
  line->setField(u"TEXT", *top);
  return line;
}

}  // namespace

TEST(FieldSession, a_single_line_text_keeps_its_field) {
  edited_drawing drawing;
  const OdDbTextPtr line = line_with_field(drawing);
  drawing.session.emplace(drawing.application.document());
  drawing.session->beginTextEdit(line);
  EXPECT_TRUE(drawing.session->editable().hasFields());
  drawing.session->editable().moveTextStart(/*shift=*/false);
  drawing.type(u"\\");
  drawing.session->finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(line->textString(), OdString(u"\\{L} = 2"));
  const auto field = odCast<OdDbField>(line->getField(u"TEXT"));
  ASSERT_TRUE(field);
  EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode), OdString(u"\\{L} = %<\\_FldIdx 0>%"));
}

TEST(FieldSession, each_line_of_a_new_single_line_text_gets_the_fields_in_it) {
  edited_drawing drawing;
  HostGivenFields fields;
  const host::OfferingFields offer(fields);
  auto source = odNew<OdDbText>();
  source->setDatabaseDefaults(drawing.database.get());
  drawing.session.emplace(drawing.application.document());
  drawing.session->beginTextEdit(source);
  drawing.type(u"one");
  drawing.send({.number = WM_KEYDOWN, .code = VK_RETURN});
  drawing.send({.number = WM_KEYUP, .code = VK_RETURN});
  fields.give(kScale);
  editing::insert_field(*drawing.session);
  drawing.session->editable().endOfEdit(/*relayout=*/true);
  drawing.session->finishEdit(/*accept=*/true, /*force=*/false);
  ASSERT_EQ(drawing.session->writtenLines().size(), 2U);
  const auto first = odOpen<OdDbText>(drawing.session->writtenLines()[0]);
  const auto second = odOpen<OdDbText>(drawing.session->writtenLines()[1]);
  EXPECT_FALSE(first->getField(u"TEXT"));
  EXPECT_EQ(second->textString(), OdString(u"2"));
  EXPECT_TRUE(second->getField(u"TEXT"));
}
