#pragma once

#include <string>

#include "od/ge/OdGeExtents3d.h"
#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiGeometry.h"
#include "od/gi/OdGiViewport.h"

class OdGiDrawable;

/// One thing drawn, in world coordinates, with the traits it was drawn with.
struct OdGiPrimitive {
  enum Kind { kPolyline, kPolygon, kCircle, kArc };

  Kind kind = kPolyline;
  std::vector<OdGiContour> contours{};  ///< of a polygon; of a polyline the one list of its points
  OdGePoint3d center{};                 ///< circle and arc, as all below
  double radius = 0;
  OdGeVector3d normal{};
  OdGeVector3d startVector{};  ///< arc: from the centre to the start
  double sweep = 0;            ///< arc: radians
  OdGiSubEntityTraits traits{};

  /// One line: kind, geometry with six significant digits, then those traits that are not the default, such
  /// as "polyline (0,0) (2,0) color 7" or "circle (1,1) r 2 rgb 255,0,0 filled".
  std::string describe() const;
};

/// A device that lists what it is given instead of showing it.
class OdGiRecorder : public OdGiGeometry {
 public:
  const std::vector<OdGiPrimitive>& primitives() const { return m_primitives; }
  /// Number of primitives of one kind.
  int count(OdGiPrimitive::Kind kind) const;
  /// The lines of all primitives, each ended by a line feed.
  std::string describe() const;
  /// The box around all points; of circles and arcs the box around their full circle.
  OdGeExtents3d extents() const;
  void clear() { m_primitives.clear(); }

  /// Draws `drawable` into a new list: attributes, world draw, and viewport draw where that is asked for and
  /// `viewport` is given.
  void record(OdGiDrawable& drawable, const OdGiContext& context = OdGiDefaultContext(),
              const OdGiViewport* viewport = nullptr);

 protected:
  void devicePolyline(std::span<const OdGePoint3d> points) override;
  void devicePolygon(std::span<const OdGiContour> contours) override;
  void deviceCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) override;
  void deviceArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                 const OdGeVector3d& startVector, double sweepAngle) override;

 private:
  std::vector<OdGiPrimitive> m_primitives;
};
