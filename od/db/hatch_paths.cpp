#include "od/db/hatch_paths.h"
#include "od/db/sweep.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kStep = std::numbers::pi / 32;  // of arcs
constexpr int kPolylinePath = 2;

class PathReader {
 public:
  PathReader(const dxf::Record& record, dxf::Range range)
      : m_record(record), m_at(range.begin), m_end(range.end) {}

  std::vector<OdGiContour> read() {
    const auto count = m_record.find(91, {m_at, m_end});
    if (!count) return {};
    m_at = *count;
    const std::int64_t paths = integer(91);
    std::vector<OdGiContour> result;
    for (std::int64_t i = 0; i < paths && codeIs(92); ++i) {
      m_contour.clear();
      const bool isPolyline = integer(92) & kPolylinePath;
      if (isPolyline)
        readPolyline();
      else
        readEdges();
      for (std::int64_t sources = integer(97); sources > 0 && codeIs(330); --sources) ++m_at;
      if (m_contour.size() > 1) result.push_back(m_contour);
    }
    return result;
  }

 private:
  bool codeIs(int code) const { return m_at < m_end && m_record[m_at].code() == code; }
  /// The value of the next group if it has that code, else 0 and nothing is passed over.
  double real(int code) { return codeIs(code) ? m_record.get_double(m_at++).value_or(0) : 0; }
  std::int64_t integer(int code) { return codeIs(code) ? m_record.get_int(m_at++).value_or(0) : 0; }
  OdGePoint3d point(int code) {
    const double x = real(code);
    return {x, real(code + 10), 0};
  }
  void skip(std::initializer_list<int> codes) {
    for (const int code : codes) {
      if (codeIs(code)) ++m_at;
    }
  }

  /// Points of an ellipse about `center`, given by its half axes.
  void addArc(const OdGePoint3d& center, const OdGeVector3d& major, const OdGeVector3d& minor, double start,
              double sweep) {
    const int steps = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kStep)));
    for (int i = 0; i <= steps; ++i) {
      const double angle = start + sweep * i / steps;
      m_contour.push_back(center + major * std::cos(angle) + minor * std::sin(angle));
    }
  }

  void addBulge(const OdGePoint3d& from, const OdGePoint3d& to, double bulge) {
    m_contour.push_back(from);
    const OdGeVector3d chord = to - from;
    if (bulge == 0 || chord.isZeroLength()) return;
    const double sweep = 4 * std::atan(bulge);
    const OdGeVector3d left{-chord.y, chord.x, 0};
    const OdGePoint3d center = from + chord * 0.5 + left * (0.5 / std::tan(sweep / 2));
    const OdGeVector3d radius = from - center;
    addArc(center, radius, {-radius.y, radius.x, 0}, 0, sweep);
  }

  void readPolyline() {
    skip({72, 73, 93});
    std::vector<std::pair<OdGePoint3d, double>> vertices;
    while (codeIs(10)) {
      const OdGePoint3d at = point(10);
      vertices.emplace_back(at, real(42));
    }
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      addBulge(vertices[i].first, vertices[(i + 1) % vertices.size()].first, vertices[i].second);
    }
  }

  void readEdges() {
    for (std::int64_t edges = integer(93); edges > 0 && codeIs(72); --edges) {
      switch (integer(72)) {
        case 1:
          m_contour.push_back(point(10));
          m_contour.push_back(point(11));
          break;
        case 2:
          readArc();
          break;
        case 3:
          readEllipse();
          break;
        default:
          readSpline();
      }
    }
  }

  /// Angles of clockwise edges are stored negated.
  void readSweep(double& start, double& sweep) {
    start = real(50) * kDegree;
    sweep = odSweep(start, real(51) * kDegree);
    const bool clockwise = codeIs(73) && integer(73) == 0;
    if (!clockwise) return;
    start = -start;
    sweep = -sweep;
  }

  void readArc() {
    const OdGePoint3d center = point(10);
    const double radius = real(40);
    double start = 0, sweep = 0;
    readSweep(start, sweep);
    addArc(center, {radius, 0, 0}, {0, radius, 0}, start, sweep);
  }

  void readEllipse() {
    const OdGePoint3d center = point(10);
    const OdGeVector3d major = point(11).asVector();
    const double ratio = real(40);
    double start = 0, sweep = 0;
    readSweep(start, sweep);
    addArc(center, major, OdGeVector3d{-major.y, major.x, 0} * ratio, start, sweep);
  }

  /// A curve by control points counts as the line through them.
  void readSpline() {
    skip({94, 73, 74, 95, 96});
    while (codeIs(40)) ++m_at;
    while (codeIs(10)) {
      m_contour.push_back(point(10));
      skip({42});
    }
    if (m_record.manner().version >= dxf::R2010) skip({97});
    while (codeIs(11)) point(11);
    skip({12, 22, 13, 23});
  }

  const dxf::Record& m_record;
  std::size_t m_at;
  std::size_t m_end;
  OdGiContour m_contour;
};

}  // namespace

std::vector<OdGiContour> odHatchPaths(const dxf::Record& record, dxf::Range range) {
  return PathReader(record, range).read();
}
