#include "ui/field_dialog/window/field_dialogs.h"

#include <QApplication>

#include "ui/field_dialog/window/field_window.h"
#include "ui/widgets/qt_text.h"

namespace {

/// Shows a choice over the window that the user works in; null when it is cancelled.
OdDbFieldPtr chosen(CFieldDlg choice, const QString& title) {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance())) return {};
  FieldWindow window(choice, title, QApplication::activeWindow());
  return window.exec() == QDialog::Accepted ? choice.result() : OdDbFieldPtr();
}

// Whoever loads the module has the dialogs; a script puts its own service in front of them.
FieldDialogs service;
const host::OfferingFields offer(service);

}  // namespace

OdDbFieldPtr FieldDialogs::insertField(HostWindow*, OdDbDatabase& database) {
  return chosen(CFieldDlg(database), qtTranslated(u"Insert Field"));
}

OdDbFieldPtr FieldDialogs::changeField(const OdDbField& field, HostWindow*, OdDbDatabase& database) {
  return chosen(CFieldDlg(database, field), qtTranslated(u"Edit Field"));
}
