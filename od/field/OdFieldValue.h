#pragma once

#include <cstdint>
#include <variant>

#include "od/base/OdString.h"

/// A moment in local time, taken apart as fields keep it.
struct OdFieldDate {
  int year = 0;                                                              ///< of the common era
  int month = 1;                                                             ///< 1 to 12
  int weekday = 0;                                                           ///< days since Sunday
  int day = 1;                                                               ///< 1 to 31
  int hour = 0;                                                              ///< 0 to 23
  int minute = 0;                                                            ///< 0 to 59
  int second = 0;                                                            ///< 0 to 59
  int millisecond = 0;                                                       ///< 0 to 999
  friend bool operator==(const OdFieldDate&, const OdFieldDate&) = default;  ///< equal in all
};

/// A point or a direction, in drawing units.
struct OdFieldPoint {
  double x = 0;                                                                ///< to the right
  double y = 0;                                                                ///< up
  double z = 0;                                                                ///< towards the viewer
  friend bool operator==(const OdFieldPoint&, const OdFieldPoint&) = default;  ///< exactly equal
};

/// An angle, in radians.
struct OdFieldAngle {
  double radians = 0;                                                          ///< counterclockwise
  friend bool operator==(const OdFieldAngle&, const OdFieldAngle&) = default;  ///< exactly equal
};

/// What an evaluation found, before it became text; empty for nothing.
using OdFieldValue =
    std::variant<std::monostate, std::int32_t, double, OdString, OdFieldDate, OdFieldPoint, OdFieldAngle>;
