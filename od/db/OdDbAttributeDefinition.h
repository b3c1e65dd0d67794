#pragma once

#include "od/db/OdDbText.h"

/// A place in a block that every insert of it fills with a text of its own.
class OdDbAttributeDefinition : public OdDbText {
  ODRX_DECLARE_MEMBERS(OdDbAttributeDefinition)

 public:
  OdDbAttributeDefinition() = default;

  OdString tag() const;
  void setTag(const OdString& tag);
  OdString prompt() const;
  void setPrompt(const OdString& prompt);
  bool isInvisible() const;
  bool isConstant() const;
  bool isVerifiable() const;
  bool isPreset() const;
  int fieldLength() const;

 protected:
  OdString shownText() const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
  VerticalGroup verticalGroup() const override;
};

using OdDbAttributeDefinitionPtr = OdSmartPtr<OdDbAttributeDefinition>;
