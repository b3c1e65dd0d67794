#include "od/db/mtext_subclass.h"

const OdDbSubclass& odMTextSubclass() {
  static constexpr int kOrder[] = {10, 20, 30, 40, 41, 46, 71, 72, 3,  1,  7,   210, 220, 230,
                                   11, 21, 31, 50, 42, 43, 73, 44, 90, 63, 421, 431, 45,  441};
  static const OdDbSubclass part{"AcDbMText", kOrder};
  return part;
}

void odSetEmbeddedReal(dxf::Record& record, int code, double value) {
  const auto range = record.embedded_object();
  const auto at = range ? record.find(code, *range) : std::nullopt;
  if (at && record.get_double(*at) != value) record.set_double(*at, value);
}

void odSetEmbeddedInteger(dxf::Record& record, int code, int value) {
  const auto range = record.embedded_object();
  const auto at = range ? record.find(code, *range) : std::nullopt;
  if (at && record.get_int(*at) != value) record.set_int(*at, value);
}

void odSetEmbeddedPoint(dxf::Record& record, int code, const OdGePoint3d& value) {
  const auto range = record.embedded_object();
  const auto at = range ? record.find(code, *range) : std::nullopt;
  const dxf::Point point{value.x, value.y, value.z};
  if (at && record.get_point(*at, range->end) != point) record.set_point(*at, range->end, point);
}
