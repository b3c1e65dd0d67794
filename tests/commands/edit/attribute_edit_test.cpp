#include <gtest/gtest.h>

#include "commands/edit/text_edit_command.h"
#include "host/command_factory.h"
#include "host/command_loop.h"
#include "host/key_code.h"
#include "host/windowless/application.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "ui/resources/strings.h"

namespace {

/// Groups of a drawing with an insert at 100,100, which has a text "old" at 200,300.
const std::string kDrawing =
    "0 SECTION 2 HEADER 9 $ACADVER 1 AC1015 0 ENDSEC "
    "0 SECTION 2 BLOCKS 0 BLOCK 5 30 100 AcDbEntity 8 0 100 AcDbBlockBegin 2 TITLE 70 2 10 0.0 20 0.0 30 0.0 "
    "3 "
    "TITLE 1 x 0 LINE 5 31 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 30 0.0 11 5.0 21 0.0 31 0.0 "
    "0 ENDBLK 5 32 100 AcDbEntity 8 0 100 AcDbBlockEnd 0 ENDSEC "
    "0 SECTION 2 ENTITIES 0 INSERT 5 20 100 AcDbEntity 8 0 100 AcDbBlockReference 66 1 2 TITLE 10 100.0 20 "
    "100.0 30 0.0 "
    "0 ATTRIB 5 21 330 20 100 AcDbEntity 8 0 100 AcDbText 10 200.0 20 300.0 30 0.0 40 10.0 1 old 100 "
    "AcDbAttribute 2 TAG 70 0 0 SEQEND 5 22 330 20 100 AcDbEntity 8 0 0 ENDSEC 0 EOF ";

std::string lines(std::string groups) {
  for (char& c : groups)
    if (c == ' ') c = '\n';
  return groups;
}

struct AttributeEdit : testing::Test {
  OdDbDatabasePtr database = OdDbDatabase::readBytes(lines(kDrawing), "insert");
  WindowlessApplication application{database};
  WindowlessInput& input = application.input();

  AttributeEdit() { resources::register_strings(); }

  OdDbBlockReferencePtr insert() const {
    const auto space = odCast<OdDbBlockTableRecord>(database->getModelSpaceId().openObject());
    return odCast<OdDbBlockReference>(space->entities().at(0).openObject());
  }
  OdString text() const {
    return odCast<OdDbAttribute>(insert()->attributes().at(0).openObject())->textString();
  }
  void write(std::u16string_view letters) {
    for (const char16_t each : letters) input.message({.number = WM_CHAR, .code = each});
    input.message({.number = WM_KEYDOWN, .code = VK_RETURN, .ctrl = true});
    input.message({.number = WM_KEYUP, .code = VK_RETURN});
  }
};

}  // namespace

TEST_F(AttributeEdit, a_press_on_a_text_of_an_insert_edits_it_in_place) {
  input.click({203, 303, 0});
  write(u"new");
  input.cancel();
  const OdSmartPtr<ICmdProcess> command(new CTextEditCmd, kOdRxObjAttach);
  EXPECT_EQ(command->run(), kCommandCancelled);
  EXPECT_EQ(text(), OdString(u"new"));
}

TEST_F(AttributeEdit, the_insert_around_it_is_shown_anew) {
  input.click({203, 303, 0});
  write(u"new");
  input.cancel();
  OdSmartPtr<ICmdProcess>(new CTextEditCmd, kOdRxObjAttach)->run();
  EXPECT_TRUE(application.document().changed().contains(insert()->objectId()));
}

TEST_F(AttributeEdit, a_press_on_another_part_of_the_insert_takes_no_text) {
  input.click({103, 100, 0});
  input.cancel();
  OdSmartPtr<ICmdProcess>(new CTextEditCmd, kOdRxObjAttach)->run();
  EXPECT_EQ(text(), OdString(u"old"));
  EXPECT_NE(std::find(application.log().lines().begin(), application.log().lines().end(),
                      u"err: selected entity is not an Text"),
            application.log().lines().end());
}

TEST_F(AttributeEdit, a_double_click_on_it_edits_it_and_ends) {
  host::command_factory().registerCommand(
      u"TextEdit", [] { return OdSmartPtr<ICmdProcess>(new COneTextEditCmd, kOdRxObjAttach); }, u"HOST",
      kCommandUsesPickFirst);
  input.click({203, 303, 0});
  input.message({.number = WM_LBUTTONDBLCLK, .point = {203, 303, 0}});
  write(u"new");
  input.line(u"Nonsense");
  HostCommandLoop(application, application.document()).runUntilEnd();
  EXPECT_EQ(text(), OdString(u"new"));
  EXPECT_EQ(application.document().prompt().refusals(), 1);  // at the command prompt again
}

TEST(AttributeEditOfSeveralLines, is_refused_so_that_no_line_is_lost) {
  std::string drawing = kDrawing;
  drawing.replace(drawing.find("70 0 0 SEQEND"), 4,
                  "70 0 101 Embedded~Object 10 200.0 20 300.0 30 0.0 1 old\\Ptwo");
  std::string bytes = lines(drawing);
  std::replace(bytes.begin(), bytes.end(), '~', ' ');
  resources::register_strings();
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, "insert");
  WindowlessApplication application{database};
  application.input().click({203, 303, 0});
  application.input().cancel();
  OdSmartPtr<ICmdProcess>(new CTextEditCmd, kOdRxObjAttach)->run();
  EXPECT_EQ(application.document().prompt().refusals(), 1);
  EXPECT_EQ(database->writeBytes(), bytes);
}
