#pragma once

#include "od/base/OdString.h"

/// What an object that is no view of a file record writes its values to and reads them from, in one order.
class OdDbDwgFiler {
 public:
  virtual ~OdDbDwgFiler() = default;

  /// The next value. Throws `OdError(eInvalidContext)` at the end or for another type.
  virtual OdString rdString() = 0;
  virtual double rdDouble() = 0;
  virtual int rdInt32() = 0;
  virtual bool rdBool() = 0;

  virtual void wrString(const OdString& value) = 0;
  virtual void wrDouble(double value) = 0;
  virtual void wrInt32(int value) = 0;
  virtual void wrBool(bool value) = 0;
};
