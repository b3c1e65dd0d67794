#pragma once

#include <variant>
#include <vector>

#include "od/db/OdDbDxfFiler.h"

/// A list of groups in memory; what is written is read back from the first group on.
class OdDbMemoryDxfFiler : public OdDbDxfFiler {
 public:
  bool atEndOfObject() const override { return m_next >= m_groups.size(); }
  int nextItem() override;
  bool atSubclassData(const OdString& subclass) override;
  OdString rdString() const override { return current<OdString>(); }
  double rdDouble() const override { return current<double>(); }
  int rdInt() const override { return current<int>(); }

  void wrSubclassMarker(const OdString& subclass) override { m_groups.push_back({100, subclass}); }
  void wrString(int code, const OdString& value) override { m_groups.push_back({code, value}); }
  void wrDouble(int code, double value) override { m_groups.push_back({code, value}); }
  void wrInt(int code, int value) override { m_groups.push_back({code, value}); }

  /// Reading starts again at the first group.
  void rewind() { m_next = 0; }
  std::size_t groupCount() const { return m_groups.size(); }

 private:
  struct Group {
    int code;
    std::variant<OdString, double, int> value;
  };

  template <typename T>
  T current() const;

  std::vector<Group> m_groups;
  std::size_t m_next = 0;  ///< one past the current group
};
