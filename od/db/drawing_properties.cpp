#include "od/db/drawing_properties.h"

#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDrawing.h"
#include "od/dxf/header_variables.h"

namespace {

/// Where a property stands: as a variable of the header, or in the record DWGPROPS of the root dictionary,
/// which other programs write.
struct Place {
  std::u16string_view name;
  std::string_view variable;
  int code;
};

constexpr Place kPlaces[] = {
    {u"Title", "$TITLE", 2},
    {u"Subject", "$SUBJECT", 3},
    {u"Author", "$AUTHOR", 4},
    {u"Comments", "$COMMENTS", 6},
    {u"Keywords", "$KEYWORDS", 7},
    {u"LastSavedBy", "$LASTSAVEDBY", 8},
    {u"RevisionNumber", "$REVISIONNUMBER", 9},
};
constexpr std::u16string_view kCustom = u"CustomDP.";

const dxf::Record* propertyRecord(OdDbDatabase& database) {
  const auto root = odOpen<OdDbDictionary>(database.drawing().rootDictionary());
  const OdDbObjectId id = root ? root->getAt(u"DWGPROPS") : OdDbObjectId();
  return id.isNull() ? nullptr : id.stub()->record;
}

OdString valueAt(OdDbDatabase& database, const Place& place) {
  const dxf::HeaderVariables variables(database.drawing().file());
  if (variables.find(place.variable)) return variables.string_or(place.variable, u"");
  const dxf::Record* record = propertyRecord(database);
  return record ? OdString(record->string_or(place.code, record->body(), u"")) : OdString();
}

/// The value behind the tag `name`, of the pairs in the header.
std::optional<OdString> customValue(OdDbDatabase& database, std::u16string_view name) {
  const dxf::Record* header = dxf::HeaderVariables(database.drawing().file()).record();
  if (!header) return {};
  bool tagged = false;
  for (std::size_t i = 0; i + 1 < header->size(); ++i) {
    if ((*header)[i].code() != 9) continue;
    const std::u16string variable = header->get_string(i);
    if (variable == u"$CUSTOMPROPERTYTAG") tagged = odEqualNoCase(header->get_string(i + 1), name);
    if (variable == u"$CUSTOMPROPERTY" && tagged) return header->get_string(i + 1);
  }
  return {};
}

}  // namespace

std::optional<OdString> odDrawingProperty(OdDbDatabase& database, std::u16string_view name) {
  if (name.size() > kCustom.size() && odEqualNoCase(name.substr(0, kCustom.size()), kCustom))
    return customValue(database, name.substr(kCustom.size()));
  for (const Place& place : kPlaces)
    if (odEqualNoCase(place.name, name)) return valueAt(database, place);
  return {};
}
