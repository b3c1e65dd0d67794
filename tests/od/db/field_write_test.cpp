#include <gtest/gtest.h>

#include <iostream>
#include <map>
#include <set>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/db/evaluate_fields.h"
#include "od/field/OdDbField.h"
#include "tests/od/db/made_fields.h"
#include "tests/od/db/sample_drawings.h"

namespace {

template <typename T>
OdSmartPtr<T> added(OdDbDatabase& database) {
  auto entity = odNew<T>();
  odOpen<OdDbBlockTableRecord>(database.getModelSpaceId(), OdDb::kForWrite)->appendOdDbEntity(entity.get());
  return entity;
}

OdDbDatabasePtr savedAndRead(OdDbDatabase& database) {
  return OdDbDatabase::readBytes(database.writeBytes(), "again");
}

template <typename T>
OdSmartPtr<T> only(OdDbDatabase& database) {
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities())
    if (auto found = odOpen<T>(id, OdDb::kForWrite)) return found;
  return {};
}

/// The bytes of each object of a drawing.
std::map<dxf::Handle, std::string> objectsOf(const std::string& bytes) {
  const dxf::File file = dxf::File::read(bytes, "drawing");
  std::map<dxf::Handle, std::string> objects;
  for (const dxf::Record& record : file.records()) {
    std::string& own = objects[record.handle()];
    for (const dxf::Group& group : record) own.append(group.bytes());
  }
  return objects;
}

std::set<dxf::Handle> changedObjects(const std::string& before, const std::string& after) {
  const auto old = objectsOf(before);
  auto now = objectsOf(after);
  std::set<dxf::Handle> changed;
  for (const auto& [handle, bytes] : old) {
    const auto found = now.find(handle);
    if (found == now.end() || found->second != bytes) changed.insert(handle);
    if (found != now.end()) now.erase(found);
  }
  for (const auto& [handle, bytes] : now) changed.insert(handle);
  return changed;
}

std::vector<OdDbMTextPtr> textsWithFields(OdDbDatabase& database) {
  std::vector<OdDbMTextPtr> found;
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities())
    if (auto text = odOpen<OdDbMText>(id, OdDb::kForWrite); text && fieldOf(*text)) found.push_back(text);
  return found;
}

/// Calls `check` with the drawing with fields of another program; says so where it is not here.
template <typename Check>
void withForeignFields(const Check& check) {
  for (const auto& path : foreignDrawings())
    if (path.filename() == "r2013_mtext_paragraphs_stacks_fields.dxf") return check(path);
  std::cout << "no drawing with fields of another program here\n";
}

constexpr const char16_t* kDate = u"\\AcVar Date \\f \"dd/MM/yyyy\"";

}  // namespace

TEST(WriteField, a_new_field_comes_back_with_its_children) {
  for (const dxf::Version version : {dxf::R2000, dxf::R2004, dxf::R2007, dxf::R2018}) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty(version);
    added<OdDbMText>(*database)->setField(
        u"TEXT",
        *container(u"{\\C1;on} %<\\_FldIdx 0>%\\P%<\\_FldIdx 1>%",
                   {shownField(kDate, u"21/04/2020"), shownField(u"\\AcVar Filename", u"C:\\a {1}.dxf")}));

    const OdDbDatabasePtr again = savedAndRead(*database);
    const OdDbMTextPtr text = only<OdDbMText>(*again);
    EXPECT_EQ(text->contents(), OdString(u"{\\C1;on} 21/04/2020\\PC:\\\\a \\{1\\}.dxf"));
    const OdDbFieldPtr field = fieldOf(*text);
    ASSERT_TRUE(field);
    EXPECT_EQ(field->getFieldCode(OdDbField::kFieldCode),
              OdString(u"{\\C1;on} %<\\_FldIdx 0>%\\P%<\\_FldIdx 1>%"));
    ASSERT_EQ(field->childCount(), 2);
    EXPECT_EQ(field->getChild(0)->getFieldCode(OdDbField::kFieldCode), OdString(kDate));
    EXPECT_EQ(field->getChild(0)->getFieldCode(OdDbField::kEvaluatedText), OdString(u"21/04/2020"));
    EXPECT_EQ(field->getChild(1)->evaluatorId(), OdString(u"AcVar"));
  }
}

TEST(WriteField, its_objects_stand_where_other_programs_look_for_them) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto text = added<OdDbMText>(*database);
  const OdDbObjectId id =
      text->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%", {shownField(kDate, u"today")}));

  const dxf::File file = dxf::File::read(database->writeBytes(), "drawing");
  std::vector<const dxf::Record*> fields;
  const dxf::Record* list = nullptr;
  int classes = 0;
  for (const dxf::Record& record : file.records()) {
    if (record.is("FIELD")) fields.push_back(&record);
    if (record.is("FIELDLIST")) list = &record;
    if (record.is("CLASS")) classes += record.string_or(1, record.body(), u"").starts_with(u"FIELD");
  }
  ASSERT_EQ(fields.size(), 2U);
  EXPECT_EQ(fields[0]->handle(), id.handle().value());
  EXPECT_EQ(fields[1]->owner(), fields[0]->handle());
  EXPECT_EQ(classes, 2);
  ASSERT_TRUE(list);
  EXPECT_EQ(list->int_or(90, *list->subclass("AcDbIdSet"), 0), 2);
  EXPECT_EQ(list->find_all(330, *list->subclass("AcDbIdSet")).size(), 2U);
  EXPECT_EQ(odOpen<OdDbDictionary>(text->extensionDictionary())->entries().size(), 1U);
}

TEST(WriteField, names_objects_by_their_place_in_a_list_and_reads_them_by_handle) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto line = added<OdDbLine>(*database);
  line->setEndPoint({3, 4, 0});
  const std::string handle = std::to_string(line->handle().value());
  const OdString code(odToUtf16("\\AcObjProp Object(%<\\_ObjId " + handle + ">%).Length \\f \"%lu2%pr1\""));
  const OdDbFieldPtr length = OdDbField::createFromCode(code.str());
  oddbEvaluateFields(*database, OdDbField::kAutomatic, std::vector{length});
  added<OdDbText>(*database)->setField(u"TEXT", *container(u"L = %<\\_FldIdx 0>%", {length}));

  EXPECT_NE(database->writeBytes().find("Object(%<\\_ObjIdx 0>%).Length"), std::string::npos);
  const OdDbDatabasePtr again = savedAndRead(*database);
  const auto text = only<OdDbText>(*again);
  EXPECT_EQ(text->textString(), OdString(u"L = 5.0"));
  EXPECT_EQ(fieldOf(*text)->getChild(0)->getFieldCode(OdDbField::kFieldCode), code);
}

TEST(WriteField, fields_within_fields_come_back) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const OdDbFieldPtr sum = OdDbField::createFromCode(u"\\AcExpr (%<\\AcVar LUNITS>% + 1) \\f \"%lu2%pr0\"");
  oddbEvaluateFields(*database, OdDbField::kAutomatic, std::vector{sum});
  added<OdDbText>(*database)->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%", {sum}));
  const OdDbDatabasePtr again = savedAndRead(*database);
  EXPECT_EQ(only<OdDbText>(*again)->textString(), OdString(u"3"));
  EXPECT_EQ(fieldOf(*only<OdDbText>(*again))->getFieldCode(OdDbField::kAddMarkers),
            OdString(u"%<\\AcExpr (%<\\AcVar LUNITS>% + 1) \\f \"%lu2%pr0\">%"));
}

TEST(WriteField, a_date_is_kept_as_eight_numbers) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  OdDbFieldPtr date = OdDbField::createFromCode(kDate);
  date->setEvaluation(OdFieldDate{2020, 4, 2, 21, 16, 45, 39, 0}, u"21/04/2020", OdDbField::kSuccess);
  added<OdDbText>(*database)->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%", {date}));
  EXPECT_NE(database->writeBytes().find("E40704000200150010002D0027000000"), std::string::npos);
}

TEST(WriteField, keeps_all_but_host_and_container_when_the_text_around_a_field_changes) {
  withForeignFields([](const std::filesystem::path& path) {
    const std::string before = bytesOf(path);
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    const OdDbMTextPtr text = textsWithFields(*database).at(0);
    const OdDbFieldPtr field = fieldOf(*text);
    field->setFieldCode(field->getFieldCode(OdDbField::kFieldCode) + OdString(u" end"), OdDbField::kTextField,
                        {field->getChild(0)});
    const OdDbObjectId top = text->setField(u"TEXT", *field);
    EXPECT_EQ(changedObjects(before, database->writeBytes()),
              (std::set<dxf::Handle>{text->handle().value(), top.handle().value()}));
    EXPECT_TRUE(text->contents().str().ends_with(u" end"));
    EXPECT_TRUE(fieldOf(*only<OdDbMText>(*savedAndRead(*database))));
  });
}

TEST(WriteField, a_child_that_shows_something_else_keeps_its_object) {
  withForeignFields([](const std::filesystem::path& path) {
    const std::string before = bytesOf(path);
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    const OdDbMTextPtr text = textsWithFields(*database).at(0);
    const OdDbFieldPtr field = fieldOf(*text);
    const OdDbFieldPtr child = field->getChild(0);
    oddbEvaluateFields(*database, OdDbField::kAutomatic, std::vector{field});
    const OdDbObjectId top = text->setField(u"TEXT", *field);
    EXPECT_EQ(changedObjects(before, database->writeBytes()),
              (std::set<dxf::Handle>{text->handle().value(), top.handle().value(), child->fileHandle()}));
    const OdDbDatabasePtr again = savedAndRead(*database);
    const OdDbFieldPtr read = fieldOf(*textsWithFields(*again).at(0));
    EXPECT_EQ(read->getChild(0)->getFieldCode(OdDbField::kEvaluatedText),
              OdString(path.filename().u16string()));
  });
}

TEST(WriteField, fields_that_nobody_needs_any_more_leave_drawing_and_list) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto text = added<OdDbMText>(*database);
  text->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%%<\\_FldIdx 1>%",
                                     {shownField(kDate, u"a"), shownField(kDate, u"b")}));
  const OdDbFieldPtr field = fieldOf(*text);
  text->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%", {field->getChild(1)}));
  EXPECT_EQ(text->contents(), OdString(u"b"));
  const std::string bytes = database->writeBytes();
  int fields = 0;
  for (std::size_t at = 0; (at = bytes.find("\nFIELD\n", at)) != bytes.npos; ++at) ++fields;
  EXPECT_EQ(fields, 3) << "container, child, and the class";
  EXPECT_EQ(fieldOf(*text)->getChild(0)->fileHandle(), field->getChild(1)->fileHandle());
}

TEST(WriteField, one_field_object_in_two_places_becomes_two_objects) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const OdDbFieldPtr date = shownField(kDate, u"a");
  added<OdDbMText>(*database)->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%%<\\_FldIdx 1>%", {date, date}));
  const OdDbFieldPtr read = fieldOf(*only<OdDbMText>(*savedAndRead(*database)));
  EXPECT_NE(read->getChild(0)->fileHandle(), read->getChild(1)->fileHandle());
}

TEST(WriteField, removing_it_leaves_the_text_and_nothing_else) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  const auto text = added<OdDbMText>(*database);
  text->setContents(u"x");
  const std::string before = database->writeBytes();
  text->setField(u"TEXT", *container(u"%<\\_FldIdx 0>%", {shownField(kDate, u"x")}));
  text->removeField(u"TEXT");
  EXPECT_FALSE(fieldOf(*text));
  EXPECT_TRUE(text->extensionDictionary().isNull());
  const std::string after = database->writeBytes();
  EXPECT_EQ(after.find("AcDbField\n"), after.rfind("AcDbField\n")) << "the class alone";
  EXPECT_EQ(objectsOf(before).at(text->handle().value()), objectsOf(after).at(text->handle().value()));
  text->removeField(u"TEXT");
}

TEST(WriteField, erasing_the_host_takes_its_fields_out_of_the_list_and_back) {
  withForeignFields([](const std::filesystem::path& path) {
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    const OdDbMTextPtr text = textsWithFields(*database).at(0);
    text->erase();
    const std::string without = database->writeBytes();
    const dxf::File file = dxf::File::read(without, "drawing");
    for (const dxf::Record& record : file.records())
      if (record.is("FIELDLIST")) {
        EXPECT_EQ(record.int_or(90, *record.subclass("AcDbIdSet"), 0), 14);
      }
    text->erase(false);
    EXPECT_TRUE(fieldOf(*text));
  });
}

TEST(WriteField, a_drawing_of_an_old_version_keeps_the_text_alone) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty(dxf::R12);
  const auto text = added<OdDbText>(*database);
  EXPECT_TRUE(
      text->setField(u"TEXT", *container(u"on %<\\_FldIdx 0>%", {shownField(kDate, u"today")})).isNull());
  EXPECT_EQ(text->textString(), OdString(u"on today"));
  EXPECT_EQ(database->writeBytes().find("FIELD"), std::string::npos);
}

TEST(WriteField, takes_a_container_alone) {
  const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
  EXPECT_THROW(added<OdDbText>(*database)->setField(u"TEXT", *shownField(kDate, u"x")), OdError);
}
