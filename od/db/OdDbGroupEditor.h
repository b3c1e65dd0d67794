#pragma once

#include <functional>

#include "od/db/OdDbGroups.h"

/// Changes the groups of one part of a record. A missing group is inserted at its place in the part's order,
/// unless the value is the one that a missing group stands for. Setting what is there already does nothing.
class OdDbGroupEditor : public OdDbGroups {
 public:
  /// `onChange` is called for each real change.
  OdDbGroupEditor(dxf::Record& record, const OdDbSubclass& part, std::function<void()> onChange);

  void setReal(int code, double value, std::optional<double> absent = {});
  void setInteger(int code, std::int64_t value, std::optional<std::int64_t> absent = {});
  void setFlag(int code, int bit, bool on);
  void setString(int code, const OdString& value, std::optional<std::u16string_view> absent = {});
  void setHandle(int code, dxf::Handle value);
  void setPoint(int code, const OdGePoint3d& value, std::optional<OdGePoint3d> absent = {});
  /// Radians here, degrees in the file; absent means 0.
  void setAngle(int code, double radians);
  /// Takes all groups of `code` out.
  void remove(int code);
  /// Takes a point's three groups out.
  void removePoint(int code);

  /// Index at which a new group of `code` is inserted.
  std::size_t place(int code) const;

 private:
  void changed();

  dxf::Record& m_target;
  const OdDbSubclass& m_part;
  std::function<void()> m_onChange;
};
