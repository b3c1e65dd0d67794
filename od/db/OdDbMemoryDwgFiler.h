#pragma once

#include <variant>
#include <vector>

#include "od/db/OdDbDwgFiler.h"

/// A list of values in memory; what is written is read back from the first value on.
class OdDbMemoryDwgFiler : public OdDbDwgFiler {
 public:
  OdString rdString() override { return next<OdString>(); }
  double rdDouble() override { return next<double>(); }
  int rdInt32() override { return next<int>(); }
  bool rdBool() override { return next<bool>(); }

  void wrString(const OdString& value) override { m_values.emplace_back(value); }
  void wrDouble(double value) override { m_values.emplace_back(value); }
  void wrInt32(int value) override { m_values.emplace_back(value); }
  void wrBool(bool value) override { m_values.emplace_back(value); }

  /// Reading starts again at the first value.
  void rewind() { m_next = 0; }

 private:
  template <typename T>
  T next();

  std::vector<std::variant<OdString, double, int, bool>> m_values;
  std::size_t m_next = 0;
};
