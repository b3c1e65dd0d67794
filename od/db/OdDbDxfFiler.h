#pragma once

#include "od/base/OdString.h"

/// What an object that is no view of a file record writes its groups to and reads them from.
class OdDbDxfFiler {
 public:
  virtual ~OdDbDxfFiler() = default;

  /// True when no group is left to read.
  virtual bool atEndOfObject() const = 0;
  /// Goes to the next group and gives its code. Throws `OdError(eInvalidContext)` at the end.
  virtual int nextItem() = 0;
  /// When the next group is the marker of `subclass` it is passed over; else false, and nothing moves.
  virtual bool atSubclassData(const OdString& subclass) = 0;
  /// Value of the group that `nextItem` went to. Throws `OdError(eInvalidContext)` for another type.
  virtual OdString rdString() const = 0;
  virtual double rdDouble() const = 0;
  virtual int rdInt() const = 0;

  virtual void wrSubclassMarker(const OdString& subclass) = 0;
  virtual void wrString(int code, const OdString& value) = 0;
  virtual void wrDouble(int code, double value) = 0;
  virtual void wrInt(int code, int value) = 0;
};
