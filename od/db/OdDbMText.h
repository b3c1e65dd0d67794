#pragma once

#include "od/db/OdDbEntity.h"
#include "od/db/OdDbMTextLayout.h"

struct OdDbMTextBackground;
struct OdDbMTextColumns;

/// Multi-line text. Lengths are in drawing units, angles in radians.
///
/// *Text coordinates* have their origin at the location, x along the direction, z along the normal.
class OdDbMText : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbMText)

 public:
  OdDbMText() = default;

  /// The text with its format codes. Where the file holds a simplified text for old programs beside the true
  /// one, and nobody changed it since, this is the true one.
  OdString contents() const;
  void setContents(const OdString& contents);

  /// Before R2018 each column behind the first is a text of its own in the file; here they are one text. The
  /// entities that hold those columns, in their order; none for a text without.
  std::vector<OdDbObjectId> linkedColumns() const;
  /// The contents by the entities that hold them: what each says when it stands alone. One at least.
  std::vector<OdString> contentsByEntity() const;

  /// The field of the whole text: those of its columns put together. See `OdDbObject::getField`.
  OdRxObjectPtr getField(const OdString& name, OdDb::OpenMode mode = OdDb::kForRead) const override;
  void removeField(const OdString& name) override;

  OdGePoint3d location() const;
  void setLocation(const OdGePoint3d& location);
  OdGeVector3d normal() const;
  void setNormal(const OdGeVector3d& normal);
  /// Length 1. Of a file's direction and rotation the one that stands last counts.
  OdGeVector3d direction() const;
  void setDirection(const OdGeVector3d& direction);
  /// Angle of the direction in the text's plane, from the x axis that the normal gives.
  double rotation() const;
  void setRotation(double rotation);

  double textHeight() const;
  void setTextHeight(double height);
  /// Width at which lines wrap; 0 means never.
  double width() const;
  void setWidth(double width);
  /// Height that was asked for; 0 means none.
  double height() const;
  void setHeight(double height);

  OdDb::AttachmentPoint attachment() const;
  void setAttachment(OdDb::AttachmentPoint attachment);
  /// The same with the location moved so that the laid-out text stays where it is.
  void setAttachmentMovingLocation(OdDb::AttachmentPoint attachment);
  /// The column of the attachment, with its row as it is: left, middle or right. Of the modes of single-line
  /// text, "middle" is the centre and those between two points are left.
  void setHorizontalMode(OdDb::TextHorzMode mode);
  OdDb::FlowDirection flowDirection() const;
  void setFlowDirection(OdDb::FlowDirection direction);

  /// The style record; that of "Standard" when the file names none or one that it does not have; null when
  /// there is no such record either.
  OdDbObjectId textStyle() const;
  OdString textStyleName() const;
  void setTextStyle(OdDbObjectId style);

  OdDb::LineSpacingStyle lineSpacingStyle() const;
  void setLineSpacingStyle(OdDb::LineSpacingStyle style);
  /// 0.25 to 4; the distance of baselines is factor x 5/3 x height.
  double lineSpacingFactor() const;
  void setLineSpacingFactor(double factor);

  bool backgroundFill() const;
  void setBackgroundFill(bool on);
  OdCmColor getBackgroundFillColor() const;
  void setBackgroundFillColor(const OdCmEntityColor& color);
  /// True when the fill takes the colour of the drawing's background.
  bool isBackgroundColorUsed() const;
  void setUseBackgroundColor(bool on);
  /// How far the fill reaches over the text, in text heights, plus 1: 1 to 5.
  double getBackgroundScaleFactor() const;
  void setBackgroundScaleFactor(double factor);
  /// True when a frame is drawn around the text.
  bool showBorders() const;

  OdDb::ColumnType getColumnType() const;
  void setColumnType(OdDb::ColumnType type);
  int getColumnCount() const;
  void setColumnCount(int count);
  double getColumnWidth() const;
  void setColumnWidth(double width);
  double getColumnGutterWidth() const;
  void setColumnGutterWidth(double gutter);
  bool getColumnAutoHeight() const;
  void setColumnAutoHeight(bool on);
  bool getColumnFlowReversed() const;
  /// A text without columns keeps none of these values: set the type first.
  /// Height of the column at `index`; 0 for one that the file gives none.
  double getColumnHeight(int index) const;
  void setColumnHeight(int index, double height);

  /// Width and height of the laid-out text: by the database's layout, without one as the file tells, or else
  /// the frame.
  double actualWidth() const;
  double actualHeight() const;
  /// The same with the box around its lines.
  OdDbMTextMeasure measured() const;

  /// From text coordinates to the world.
  OdGeMatrix3d textToWorld() const;

  void setDatabaseDefaults(OdDbDatabase* database) override;
  OdResult getPlane(OdGePlane& plane) const override;
  OdResult getGeomExtents(OdGeExtents3d& extents) const override;

 protected:
  OdString fieldHostText() const override;
  void setFieldHostText(const OdDbField& field) override;
  bool isUnsettled() const override { return m_textChanged || m_formChanged; }
  void settle() override;
  void recordMoved(const dxf::Record& before) override;
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;

 private:
  OdDbMTextColumns columns() const;
  void setColumns(const OdDbMTextColumns& columns);
  /// For changing what the columns of a text have in common.
  OdDbGroupEditor editForm();
  OdString ownContents() const;
  /// Those of this entity alone, the true ones where the file has two.
  OdString ownTrueContents() const;
  void setOwnContents(const OdString& contents);
  dxf::Record* trueContents() const;

  // ---- mtext_linked_columns.cpp
  /// True in the drawing for the entity of a column behind the first.
  bool isLinkedColumn() const;
  std::vector<OdSmartPtr<OdDbMText>> openLinkedColumns(OdDb::OpenMode mode) const;
  void emptyLinkedColumns();

  // ---- mtext_settling.cpp
  bool linksColumns() const;
  std::vector<OdString> laidOutColumns() const;
  void putAllIntoFirst();
  void gatherLinkedColumns();
  void spreadLinkedColumns();
  void setLinkedColumnCount(std::size_t count);
  void appendLinkedColumn();
  void eraseLinkedColumns(std::size_t first);
  void takeForm(const OdDbMText& first, std::size_t column);
  void writeLaidOutSize();

  OdDbMTextBackground background() const;
  void setBackground(const OdDbMTextBackground& background);
  void drawBackground(OdGiWorldDraw& draw, const OdDbMTextMeasure& size) const;

  // Since the drawing was read or written.
  bool m_textChanged = false;
  bool m_formChanged = false;
};

using OdDbMTextPtr = OdSmartPtr<OdDbMText>;
