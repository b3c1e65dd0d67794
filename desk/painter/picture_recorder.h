#pragma once

#include "desk/painter/picture.h"
#include "desk/painter/picture_frame.h"
#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiGeometry.h"

class OdGiDrawable;

/// The device of the window and of pictures: makes paths of what is drawn.
class PictureRecorder : public OdGiGeometry {
 public:
  /// Both have to outlive the recorder.
  PictureRecorder(const PictureFrame& frame, const OdGiContext& context)
      : m_frame(frame), m_context(context) {}

  /// Draws a drawable as it is seen in `view`, and gives the picture of it.
  Picture record(OdGiDrawable& drawable, const OdGiViewport& view);

 protected:
  void devicePolyline(std::span<const OdGePoint3d> points) override;
  void devicePolygon(std::span<const OdGiContour> contours) override;
  void deviceCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) override;
  void deviceArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                 const OdGeVector3d& startVector, double sweepAngle) override;

 private:
  QPainterPath& pathFor(bool filled);
  void addArc(QPainterPath& path, const OdGePoint3d& center, const OdGeVector3d& start,
              const OdGeVector3d& quarter, double sweep);

  const PictureFrame& m_frame;
  const OdGiContext& m_context;
  Picture m_picture;
};
