#include "host/angle_text.h"

#include <algorithm>
#include <numbers>

#include "host/distance_text.h"
#include "host/document.h"
#include "host/exports.h"
#include "od/db/OdDbDatabase.h"

namespace {

constexpr int kMostDecimals = 8;
constexpr int kNoZerosAtTheEnd = 8;  ///< as DIMZIN tells it

}  // namespace

std::u16string hostdbAngToS(double radians) {
  HostDocument* document = host::active_document();
  const int precision = document ? document->database().getSysVarInt(u"AUPREC", 0) : 0;
  return host::distance_text(radians * 180 / std::numbers::pi,
                             {.units = host::length_units::decimal,
                              .precision = std::clamp(precision, 0, kMostDecimals),
                              .zeros = kNoZerosAtTheEnd});
}
