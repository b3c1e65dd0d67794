#include "ui/dialogs/CMTextColumnsDlg.h"
#include "ui/dialogs/user_locale.h"

bool ShowMTextColumnsDlg(unsigned* type, unsigned char* auto_height, unsigned* count, double* height,
                         double* column_width, double* gutter, double* total, double* text_height) {
  const dialogs::UserLocale locale;
  CMTextColumnsDlg dialog(
      {*type, *auto_height, *count, *height, *column_width, *gutter, *total, *text_height});
  if (!dialog.doModal()) return false;
  const column_values& chosen = dialog.values();
  *type = chosen.type;
  *auto_height = chosen.auto_height;
  *count = chosen.count;
  *height = chosen.height;
  *column_width = chosen.column_width;
  *gutter = chosen.gutter;
  *total = chosen.total;
  *text_height = chosen.text_height;
  return true;
}
