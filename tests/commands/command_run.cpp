#include "tests/commands/command_run.h"

#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbLine.h"
#include "ui/resources/strings.h"

namespace {

OdDbObjectId append(OdDbDatabase& database, OdDbEntity& entity) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getModelSpaceId().openObject(OdDb::kForWrite));
  return space->appendOdDbEntity(&entity);
}

}  // namespace

command_run::command_run() : database(OdDbDatabase::createEmpty()), application(database) {
  resources::register_strings();
  database->setTextLayout(std::make_shared<mtext::mtext_layout>());
}

OdDbMTextPtr command_run::addText(const OdString& contents, const OdGePoint3d& location) {
  auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(database.get());
  text->setContents(contents);
  text->setTextHeight(2.5);
  text->setWidth(40);
  text->setLocation(location);
  append(*database, *text);
  return text;
}

OdDbTextPtr command_run::addLineOfText(const OdString& string, const OdGePoint3d& position) {
  auto text = odNew<OdDbText>();
  text->setDatabaseDefaults(database.get());
  text->setTextString(string);
  text->setHeight(2.5);
  text->setPosition(position);
  append(*database, *text);
  return text;
}

OdDbObjectId command_run::addLine(const OdGePoint3d& from, const OdGePoint3d& to) {
  auto line = odNew<OdDbLine>();
  line->setDatabaseDefaults(database.get());
  line->setStartPoint(from);
  line->setEndPoint(to);
  return append(*database, *line);
}

void command_run::lockLayer() {
  const auto newest = odCast<OdDbEntity>(entities().back().openObject());
  odCast<OdDbLayerTableRecord>(newest->layerId().openObject(OdDb::kForWrite))->setIsLocked(true);
}

void command_run::type(std::u16string_view characters) {
  for (const char16_t each : characters) application.input().message({.number = WM_CHAR, .code = each});
}

void command_run::key(unsigned code, const HostHeldKeys::Keys& held) {
  application.input().message({.number = WM_KEYDOWN, .code = code, .shift = held.shift, .ctrl = held.ctrl});
  application.input().message({.number = WM_KEYUP, .code = code});
}

std::vector<OdDbObjectId> command_run::entities() const {
  return odCast<OdDbBlockTableRecord>(database->getModelSpaceId().openObject())->entities();
}
