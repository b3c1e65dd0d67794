#pragma once

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "od/ge/OdGeMatrix3d.h"
#include "od/gi/OdGiSubEntityTraits.h"

class OdGiTextStyle;

/// A closed line, without its first point again at the end.
using OdGiContour = std::vector<OdGePoint3d>;

/// The pen that drawables draw with. It keeps the model transforms and the traits in force, takes everything
/// apart into a few primitives, and hands these to a device, which is a class derived from it.
///
/// All points and vectors given to the public operations are in model coordinates; the device gets the
/// world's. Text becomes one polygon a character for outline fonts and polylines for stroke fonts. A circle
/// or arc that a transform squeezes becomes a polyline or polygon.
class OdGiGeometry {
 public:
  OdGiGeometry() = default;
  OdGiGeometry(const OdGiGeometry&) = delete;
  OdGiGeometry& operator=(const OdGiGeometry&) = delete;
  virtual ~OdGiGeometry() = default;

  /// The traits in force, to be read and set.
  OdGiSubEntityTraits& traits() { return m_traits; }
  const OdGiSubEntityTraits& traits() const { return m_traits; }

  /// Everything until the matching `popModelTransform` is drawn through `m` first, then through what was in
  /// force before.
  void pushModelTransform(const OdGeMatrix3d& m);
  /// Throws `OdError(eInvalidContext)` when nothing was pushed.
  void popModelTransform();
  const OdGeMatrix3d& getModelToWorldTransform() const;
  /// Throws `OdError(eDegenerateGeometry)` when the transform in force has no inverse.
  OdGeMatrix3d getWorldToModelTransform() const { return getModelToWorldTransform().inverse(); }

  /// An open line. `normal` and `baseSubEntMarker` are part of the protocol and change nothing here.
  void polyline(std::span<const OdGePoint3d> points, const OdGeVector3d* normal = nullptr,
                long baseSubEntMarker = -1);
  void polyline(std::initializer_list<OdGePoint3d> points) { polyline({points.begin(), points.size()}); }
  void polyline(int count, const OdGePoint3d* points, const OdGeVector3d* normal = nullptr,
                long baseSubEntMarker = -1) {
    polyline({points, static_cast<std::size_t>(count)}, normal, baseSubEntMarker);
  }

  /// A closed shape, filled when the fill type in force is "always", else its edge alone. The first point may
  /// stand again at the end.
  void polygon(std::span<const OdGePoint3d> points);
  void polygon(std::initializer_list<OdGePoint3d> points) { polygon({points.begin(), points.size()}); }
  void polygon(int count, const OdGePoint3d* points) { polygon({points, static_cast<std::size_t>(count)}); }
  /// The same of several contours, filled by the non-zero winding rule.
  void polyPolygon(std::span<const OdGiContour> contours);

  /// A full circle, filled when the fill type in force is "always".
  void circle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal);
  /// An arc from `startVector`, whose length does not matter, over `sweepAngle` radians, counter-clockwise
  /// seen against `normal`; clockwise when negative.
  void circularArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                   const OdGeVector3d& startVector, double sweepAngle);

  /// A line of text that starts on `position` and runs along `direction`, its up direction being `normal` x
  /// `direction`. `raw` false reads `%%` and `\U+` sequences, as single-line text entities need. The style
  /// has to be loaded; throws `OdError(eInvalidInput)` otherwise. Colour of underlines is that of the text.
  void text(const OdGePoint3d& position, const OdGeVector3d& normal, const OdGeVector3d& direction,
            std::u16string_view text, bool raw, const OdGiTextStyle& style);

 protected:
  /// World points, at least one; drawn with `traits()`.
  virtual void devicePolyline(std::span<const OdGePoint3d> points) = 0;
  /// Filled contours in the world, by the non-zero winding rule.
  virtual void devicePolygon(std::span<const OdGiContour> contours) = 0;
  /// Full circle in the world. Filled when `traits().fillType()` says so.
  virtual void deviceCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) = 0;
  /// `startVector` has the length `radius`; `sweepAngle` may be negative.
  virtual void deviceArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                         const OdGeVector3d& startVector, double sweepAngle) = 0;
  /// How far a polyline may stray from the curve it stands for, in drawing units of the world. 0 means a
  /// thousandth of the radius.
  virtual double deviation() const { return 0; }

 private:
  struct Ellipse;
  void ellipticalArc(const Ellipse& curve, bool closed);
  void emitClosed(std::span<const OdGiContour> contours);

  OdGiSubEntityTraits m_traits;
  std::vector<OdGeMatrix3d> m_transforms;  ///< each the whole way from the model to the world
};
