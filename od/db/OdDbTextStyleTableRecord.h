#pragma once

#include "od/db/OdDbSymbolTableRecord.h"

class OdGiTextStyle;

/// A text style: a font and how it is set. Angles in radians.
class OdDbTextStyleTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbTextStyleTableRecord)

 public:
  OdDbTextStyleTableRecord() = default;

  /// Fixed height; 0 leaves it to each text.
  double textSize() const;
  void setTextSize(double size);
  /// The height that was used last.
  double priorSize() const;
  double xScale() const;
  void setXScale(double scale);
  double obliquingAngle() const;
  void setObliquingAngle(double angle);

  /// The typeface with its bits; the name is empty for a style with a shape font.
  void font(OdString& typeface, bool& bold, bool& italic, int& charset, int& pitchAndFamily) const;
  void setFont(const OdString& typeface, bool bold, bool italic, int charset, int pitchAndFamily);
  OdString fileName() const;
  void setFileName(const OdString& name);
  OdString bigFontFileName() const;
  void setBigFontFileName(const OdString& name);

  bool isVertical() const;
  /// True for a record that names a file of shapes; it is no style for texts.
  bool isShapeFile() const;
  bool isBackward() const;
  bool isUpsideDown() const;

  /// Copies all that drawing needs.
  void getTextStyle(OdGiTextStyle& style) const;

 protected:
  std::unique_ptr<dxf::Record> newRecord() const override;
  const OdDbSubclass& ownPart() const override;
};

using OdDbTextStyleTableRecordPtr = OdSmartPtr<OdDbTextStyleTableRecord>;
