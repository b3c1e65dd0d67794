#include "ui/dialogs/CCaseDlg.h"

#include "ui/dialogs/dialog_display.h"

bool CCaseDlg::doModal() {
  DialogDisplay* display = dialogs::display();
  return display && display->show(*this);
}
