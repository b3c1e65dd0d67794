#pragma once

#include "od/base/OdArray.h"
#include "od/db/OdDbEntity.h"

/// Single-line text. Lengths are in drawing units, angles in radians, points in world coordinates.
class OdDbText : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbText)

 public:
  OdDbText() = default;

  OdString textString() const;
  void setTextString(const OdString& text);

  /// The end of the baseline at which the text begins, as the file tells it. Of a justified text programs
  /// with other fonts have worked it out, or none has; after `adjustAlignment` it is where the text is drawn.
  OdGePoint3d position() const;
  void setPosition(const OdGePoint3d& position);
  /// The point that the justification refers to; has a meaning unless it is left and baseline.
  OdGePoint3d alignmentPoint() const;
  void setAlignmentPoint(const OdGePoint3d& point);
  bool isDefaultAlignment() const;

  double height() const;
  void setHeight(double height);
  double widthFactor() const;
  void setWidthFactor(double factor);
  /// Slant of the characters, clockwise from upright.
  double oblique() const;
  void setOblique(double angle);
  double rotation() const;
  void setRotation(double angle);
  double thickness() const;
  void setThickness(double thickness);
  OdGeVector3d normal() const;
  /// Position and alignment point keep their object coordinates.
  void setNormal(const OdGeVector3d& normal);

  OdDb::TextHorzMode horizontalMode() const;
  void setHorizontalMode(OdDb::TextHorzMode mode);
  OdDb::TextVertMode verticalMode() const;
  void setVerticalMode(OdDb::TextVertMode mode);

  /// The style record; that of "Standard" when the file names none or one that it does not have.
  OdDbObjectId textStyle() const;
  OdString textStyleName() const;
  void setTextStyle(OdDbObjectId style);

  bool isMirroredInX() const;
  bool isMirroredInY() const;
  /// Written backwards.
  void mirrorInX(bool on);
  /// Written upside down.
  void mirrorInY(bool on);

  /// Works out position from alignment point by the measured text; for aligned and fitted text rotation, and
  /// height or width factor, from both. A null database means the text's own.
  void adjustAlignment(OdDbDatabase* database = nullptr);
  /// Corners of the text's box in the world: top left, top right, bottom left, bottom right. Left is where
  /// the text begins, also in one that is written backwards.
  void getBoundingPoints(OdArray<OdGePoint3d>& points) const;

  void setDatabaseDefaults(OdDbDatabase* database) override;
  OdResult getPlane(OdGePlane& plane) const override;
  OdResult getGeomExtents(OdGeExtents3d& extents) const override;

 protected:
  OdString fieldHostText() const override { return textString(); }
  void setFieldHostText(const OdDbField& field) override;
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;

  /// What is drawn: of an attribute definition its tag.
  virtual OdString shownText() const { return textString(); }

  /// The part of the record, and the code in it, that hold the vertical mode.
  struct VerticalGroup {
    const OdDbSubclass* part;
    int code;
  };
  virtual VerticalGroup verticalGroup() const;
};

using OdDbTextPtr = OdSmartPtr<OdDbText>;
