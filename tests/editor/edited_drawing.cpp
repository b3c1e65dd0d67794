#include "tests/editor/edited_drawing.h"

#include "mtext/entity/mtext_layout.h"
#include "tests/editor/flat_view.h"
#include "ui/resources/menus.h"
#include "ui/resources/strings.h"

edited_drawing::edited_drawing() : database(OdDbDatabase::createEmpty()), application(database) {
  resources::register_strings();
  resources::register_menus();
  lay_flat(application);
  database->setTextLayout(std::make_shared<mtext::mtext_layout>());
  text = odNew<OdDbMText>();
  text->setDatabaseDefaults(database.get());
  text->setContents(u"Hall");
  text->setTextHeight(2.5);
  text->setLocation({10, 20, 0});
  text->setWidth(40);
  const auto space = odCast<OdDbBlockTableRecord>(database->getModelSpaceId().openObject(OdDb::kForWrite));
  space->appendOdDbEntity(text.get());
}

smart_edit& edited_drawing::begin(const session_start& start) {
  session.emplace(application.document());
  session->beginMTextEdit(text, start);
  return *session;
}

void edited_drawing::type(std::u16string_view characters) {
  for (const char16_t each : characters) send({.number = WM_CHAR, .code = each});
}
