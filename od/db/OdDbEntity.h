#pragma once

#include <optional>

#include "od/cm/OdCmColor.h"
#include "od/db/OdDbObject.h"
#include "od/ge/OdGeExtents3d.h"
#include "od/ge/OdGePlane.h"
#include "od/gi/OdGiWorldDraw.h"

/// What is drawn and selected: the data that all kinds have in common.
class OdDbEntity : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbEntity)

 public:
  OdDbObjectId blockId() const { return ownerId(); }

  OdString layer() const;
  /// The record of the layer; null when the layer table has no such name.
  OdDbObjectId layerId() const;
  void setLayer(const OdString& name);
  void setLayer(OdDbObjectId layer);

  /// A true colour wins over the index beside it.
  OdCmColor color() const;
  OdCmEntityColor entityColor() const { return color(); }
  int colorIndex() const;
  /// Writes index and, for a true colour, the colour with its nearest index.
  void setColor(const OdCmEntityColor& color);
  void setColorIndex(int index);

  OdString linetype() const;
  void setLinetype(const OdString& name);
  double linetypeScale() const;
  void setLinetypeScale(double scale);
  /// Hundredths of a millimetre or a value of `OdDb::LineWeight`.
  int lineWeight() const;
  void setLineWeight(int weight);
  OdGiTransparency transparency() const;

  /// Hiding is for the time being: it is never written. `kVisible` ends it; what the file says comes back.
  void setVisibility(OdDb::Visibility visibility, bool doSubents = true);
  OdDb::Visibility visibility() const;
  /// True for entities of a paper space.
  bool isPaperSpace() const;

  /// Layer, colour, linetype, linetype scale and lineweight that the database gives to new entities, and the
  /// database itself for looking up styles. A null database is left out.
  virtual void setDatabaseDefaults(OdDbDatabase* database);

  /// The plane that the entity lies in. `eNotApplicable` for one without a plane.
  virtual OdResult getPlane(OdGePlane& plane) const;
  /// The box around the entity in world coordinates. `eInvalidInput` when there is nothing to go round.
  virtual OdResult getGeomExtents(OdGeExtents3d& extents) const;

  /// Layer, colour, linetype, weight and transparency.
  unsigned setAttributes(OdGiDrawableTraits& traits) override;
  /// Draws the geometry unless the entity is hidden or invisible.
  bool worldDraw(OdGiWorldDraw& draw) override;

 protected:
  OdDbEntity() = default;

  /// Draws what the entity looks like, with its traits in force.
  virtual void drawGeometry(OdGiWorldDraw& draw) const;
  std::unique_ptr<dxf::Record> newRecord() const override;

  friend class OdDbDrawing;

  /// Says in a record that its entity lies on paper.
  static void markPaperSpace(dxf::Record& record);
  /// The extrusion direction in `part`, with length 1.
  OdGeVector3d normalOf(const OdDbSubclass& part) const;

 private:
  std::optional<OdDb::Visibility> m_hidden;
};

using OdDbEntityPtr = OdSmartPtr<OdDbEntity>;
