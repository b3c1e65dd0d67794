#include <gtest/gtest.h>

#include <iostream>
#include <set>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbText.h"
#include "od/dxf/file.h"
#include "tests/od/db/sample_drawings.h"

namespace {

/// All multi-line and single-line texts of all blocks.
std::pair<int, int> countTexts(OdDbDatabase& database) {
  int multi = 0, single = 0;
  for (const OdDbObjectId& block : odOpen<OdDbSymbolTable>(database.getBlockTableId())->records()) {
    for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(block)->entities()) {
      if (const auto text = odOpen<OdDbMText>(id)) multi += !text->contents().isEmpty();
      const auto line = odOpen<OdDbText>(id);
      if (line && line->isA() == OdDbText::desc()) single += !line->textString().isEmpty();
    }
  }
  return {multi, single};
}

struct Change {
  std::size_t begin, oldEnd, newEnd;  ///< the bytes outside are the same in both
};

Change changeBetween(const std::string& before, const std::string& after) {
  std::size_t begin = 0;
  while (begin < before.size() && begin < after.size() && before[begin] == after[begin]) ++begin;
  std::size_t tail = 0;
  while (tail < before.size() - begin && tail < after.size() - begin &&
         before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
    ++tail;
  return {begin, before.size() - tail, after.size() - tail};
}

/// The first multi-line or single-line text with some content, in file order.
OdDbEntityPtr firstText(OdDbDatabase& database) {
  for (const OdDbObjectId& block : odOpen<OdDbSymbolTable>(database.getBlockTableId())->records()) {
    for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(block)->entities()) {
      if (const auto text = odOpen<OdDbMText>(id); text && text->contents().str().size() > 1) return text;
      if (const auto line = odOpen<OdDbText>(id); line && !line->textString().isEmpty()) return line;
    }
  }
  return {};
}

OdString textOf(const OdDbEntityPtr& entity) {
  const auto text = odCast<OdDbMText>(entity);
  return text ? text->contents() : odCast<OdDbText>(entity)->textString();
}

void setText(const OdDbEntityPtr& entity, const OdString& value) {
  if (const auto text = odCast<OdDbMText>(entity))
    text->setContents(value);
  else
    odCast<OdDbText>(entity)->setTextString(value);
}

/// How many entities of the file the text stands in: columns may be some of their own.
int entityCountOf(const OdDbEntityPtr& entity) {
  const auto text = odCast<OdDbMText>(entity);
  return text ? static_cast<int>(text->contentsByEntity().size()) : 1;
}

using Groups = std::vector<std::pair<int, std::string>>;

/// Codes and bytes of the groups of each record.
std::vector<Groups> recordsOf(const std::string& bytes) {
  std::vector<Groups> records;
  const dxf::File file = dxf::File::read(bytes, "drawing");
  for (const dxf::Record& record : file.records()) {
    Groups& groups = records.emplace_back();
    for (const dxf::Group& group : record) groups.emplace_back(group.code(), group.bytes());
  }
  return records;
}

/// Codes of the groups that stand in one of two records only.
std::set<int> codesChanged(Groups before, Groups after) {
  std::sort(before.begin(), before.end());
  std::sort(after.begin(), after.end());
  Groups different;
  std::set_symmetric_difference(before.begin(), before.end(), after.begin(), after.end(),
                                std::back_inserter(different));
  std::set<int> codes;
  for (const auto& group : different) codes.insert(group.first);
  return codes;
}

}  // namespace

TEST(ForeignDrawings, load_list_their_texts_and_save_byte_for_byte) {
  if (foreignDrawings().empty()) std::cout << "no drawings of other programs here: nothing to compare\n";
  int multi = 0, single = 0;
  for (const auto& path : foreignDrawings()) {
    SCOPED_TRACE(path.filename().string());
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    const auto [m, s] = countTexts(*database);
    multi += m;
    single += s;
    EXPECT_GT(m + s, 0);
    EXPECT_TRUE(database->writeBytes() == bytesOf(path));
    EXPECT_FALSE(database->isModified());
  }
  if (!foreignDrawings().empty()) {
    EXPECT_GT(multi, 350);
    EXPECT_GT(single, 200);
  }
}

TEST(ForeignDrawings, differ_after_the_edit_of_one_text_in_its_content_groups_alone) {
  for (const auto& path : foreignDrawings()) {
    SCOPED_TRACE(path.filename().string());
    const std::string before = bytesOf(path);
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(before, path.filename().string());
    OdDbEntityPtr text = firstText(*database);
    ASSERT_TRUE(text);
    text->upgradeOpen();
    const OdString changed = textOf(text) + OdString(u" and more");
    setText(text, changed);
    EXPECT_TRUE(database->isModified());

    const std::string after = database->writeBytes();

    const std::vector<Groups> oldRecords = recordsOf(before), newRecords = recordsOf(after);
    ASSERT_EQ(newRecords.size(), oldRecords.size());
    int differing = 0;
    for (std::size_t i = 0; i < oldRecords.size(); ++i) {
      if (oldRecords[i] == newRecords[i]) continue;
      ++differing;
      for (const int code : codesChanged(oldRecords[i], newRecords[i]))
        EXPECT_TRUE(code == 1 || code == 3) << code;
    }
    const int entities = entityCountOf(text);
    EXPECT_GE(differing, 1);
    EXPECT_LE(differing, entities);
    const Change change = changeBetween(before, after);
    EXPECT_LT(change.oldEnd - change.begin, entities == 1 ? 600u : before.size());

    const OdDbDatabasePtr again = OdDbDatabase::readBytes(after, "again");
    EXPECT_EQ(textOf(firstText(*again)), changed);
  }
}

TEST(ForeignDrawings, keep_every_byte_when_all_values_are_set_to_what_they_are) {
  for (const auto& path : foreignDrawings()) {
    SCOPED_TRACE(path.filename().string());
    const OdDbDatabasePtr database = OdDbDatabase::readFile(path);
    for (const OdDbObjectId& block : odOpen<OdDbSymbolTable>(database->getBlockTableId())->records()) {
      for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(block)->entities()) {
        const auto text = odOpen<OdDbMText>(id, OdDb::kForWrite);
        if (!text) continue;
        text->setContents(text->contents());
        text->setTextStyle(text->textStyle());
        text->setWidth(text->width());
        text->setHeight(text->height());
        text->setColumnType(text->getColumnType());
        text->setColumnWidth(text->getColumnWidth());
        text->setColumnGutterWidth(text->getColumnGutterWidth());
        text->setColumnCount(text->getColumnCount());
        text->setColumnAutoHeight(text->getColumnAutoHeight());
        for (int i = 0; i < text->getColumnCount(); ++i) text->setColumnHeight(i, text->getColumnHeight(i));
        text->setAttachment(text->attachment());
        text->setLocation(text->location());
        text->setTextHeight(text->textHeight());
        text->setNormal(text->normal());
        text->setDirection(text->direction());
        text->setRotation(text->rotation());
        text->setLineSpacingStyle(text->lineSpacingStyle());
        text->setLineSpacingFactor(text->lineSpacingFactor());
        text->setColor(text->color());
        text->setLayer(text->layer());
        text->setBackgroundFill(text->backgroundFill());
        text->setVisibility(OdDb::kInvisible);
        text->setVisibility(OdDb::kVisible);
      }
    }
    EXPECT_TRUE(database->writeBytes() == bytesOf(path));
    EXPECT_FALSE(database->isModified());
  }
}
