#include "od/db/text_subclass.h"

const OdDbSubclass& odTextSubclass() {
  static constexpr int kOrder[] = {39, 10, 20, 30, 40, 1, 50, 41, 51, 7, 71, 72, 11, 21, 31, 210, 220, 230};
  static const OdDbSubclass part{"AcDbText", kOrder};
  return part;
}
