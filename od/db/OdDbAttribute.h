#pragma once

#include "od/db/OdDbText.h"

/// The text of an insert for one attribute definition of its block. Its coordinates are those of the insert's
/// own space.
class OdDbAttribute : public OdDbText {
  ODRX_DECLARE_MEMBERS(OdDbAttribute)

 public:
  OdDbAttribute() = default;

  OdString tag() const;
  void setTag(const OdString& tag);
  bool isInvisible() const;
  bool isConstant() const;
  int fieldLength() const;
  /// True for a text of several lines, which the file keeps beside this one's string. What is shown and
  /// edited here is the string alone.
  bool isMTextAttribute() const;

 protected:
  OdString shownText() const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
  VerticalGroup verticalGroup() const override;
};

using OdDbAttributePtr = OdSmartPtr<OdDbAttribute>;
