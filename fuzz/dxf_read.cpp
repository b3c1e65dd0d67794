// Reads any bytes as a drawing, as records and as a database, and changes one value.

#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/dxf/file.h"
#include "od/dxf/text_codec.h"

namespace {

using fuzz::require;

constexpr char kName[] = "plan.dxf";

/// What was read from a string is kept when it is written.
void requireKept(const std::u16string& text, const dxf::TextCodec& codec) {
  require(codec.decode(codec.encode(text)) == text, "a text that was read can be written without loss");
}

void readEverything(const dxf::Record& record) {
  for (std::size_t i = 0; i < record.size(); ++i) {
    requireKept(record.get_string(i), record.manner().codec);
    record.get_handle(i);
    record.get_double(i);
    record.get_int(i);
    record.get_binary(i);
    record.get_point(i, record.size());
  }
  for (const auto& range : {record.subclass("AcDbEntity"), record.embedded_object(), record.xdata(u"ACAD"),
                            record.application_group("ACAD_REACTORS")}) {
    if (range)
      require(range->begin <= range->end && range->end <= record.size(), "a range lies in its record");
  }
}

bool sameBytes(const dxf::Record& a, const dxf::Record& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (a[i].bytes() != b[i].bytes()) return false;
  }
  return true;
}

/// The record to change: the last one with a string behind its group 0 that means no part of the file's
/// frame.
dxf::Record* changeable(dxf::File& file, std::size_t& group) {
  for (dxf::Record* record = file.records().last(); record; record = record->previous()) {
    if (record->is("SECTION") || record->is("ENDSEC") || record->is("EOF") || record->type().empty())
      continue;
    for (group = 1; group < record->size(); ++group) {
      if ((*record)[group].code() == 1) return record;
    }
  }
  return nullptr;
}

/// Writes another text into one record: it reads as it was written, and no other record differs.
void changeOneText(const std::string& bytes) {
  dxf::File file = dxf::File::read(bytes, kName);
  std::size_t group = 0;
  dxf::Record* changed = changeable(file, group);
  if (!changed) return;
  const std::u16string typed = u"Room ^ 12 \u00e4 \u4e2d {x}\t\U0001F600";
  const std::u16string text = file.codec().escape_missing(typed);
  changed->set_string(group, typed);
  require(changed->get_string(group) == text, "a record has the text that it was given");
  const dxf::File again = dxf::File::read(file.write(), kName);
  require(again.records().size() == file.records().size(), "no record came or went");
  const dxf::Record* other = again.records().first();
  for (const dxf::Record& each : file.records()) {
    require(sameBytes(each, *other), "a record has the bytes that were written");
    if (&each == changed) require(other->get_string(group) == text, "a text reads as it was written");
    other = other->next();
  }
}

void readRecords(const std::string& bytes) {
  const dxf::File file = dxf::File::read(bytes, kName);
  for (const dxf::Record& record : file.records()) readEverything(record);
  require(file.write() == bytes, "an unchanged file is written with the bytes that were read");
}

/// Reads all texts of a block, and returns one that can be changed; null if there is none.
OdSmartPtr<OdDbMText> readTexts(OdDbObjectId block) {
  OdSmartPtr<OdDbMText> found;
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(block)->entities()) {
    if (const auto text = odOpen<OdDbMText>(id)) found = text;
    if (const auto line = odOpen<OdDbText>(id)) line->textString();
    if (found) found->contents();
  }
  return found;
}

/// Gives a text other contents: they are there when the drawing was saved and is read again.
void changeContents(OdDbDatabase& database, OdDbMText& text) {
  const OdDbHandle handle = text.objectId().getHandle();
  const OdString contents = u"{\\H2x;Room} 12";
  text.upgradeOpen();
  text.setContents(contents);
  text.downgradeOpen();
  const OdDbDatabasePtr again = OdDbDatabase::readBytes(database.writeBytes(), kName);
  const auto found = odOpen<OdDbMText>(again->getOdDbObjectId(handle));
  // Of several objects with one handle, another one may be found.
  require(!found || database.getOdDbObjectId(handle) != text.objectId() || found->contents() == contents,
          "saved contents are read again");
}

void readDatabase(const std::string& bytes) {
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, kName);
  const OdSmartPtr<OdDbMText> text = readTexts(database->getModelSpaceId());
  readTexts(database->getPaperSpaceId());
  require(!database->isModified(), "what was only read is unchanged");
  require(database->writeBytes() == bytes, "an unchanged drawing is saved with the bytes that were read");
  if (text) changeContents(*database, *text);
}

template <typename Read>
bool refuses(Read read) {
  try {
    read();
    return false;
  } catch (const dxf::Error& refused) {
    require(std::string_view(refused.what()).starts_with(kName), "a refusal names the file");
    return true;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const bool refused = refuses([&] { readRecords(bytes); });
  const bool databaseRefused = refuses([&] { readDatabase(bytes); });
  require(databaseRefused || !refused, "what is no file is no database");
  if (!refused) require(!refuses([&] { changeOneText(bytes); }), "a changed file can be read");
  return 0;
}
