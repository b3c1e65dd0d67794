#include "od/db/OdDbPolyline.h"

#include "od/base/OdArray.h"
#include "od/db/bulge_drawing.h"
#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbPolyline, OdDbEntity, "LWPOLYLINE")

namespace {

constexpr int kOrder[] = {90, 70, 43, 38, 39};
const OdDbSubclass kPolyline{"AcDbPolyline", kOrder};

constexpr int kClosed = 1;

/// Index of the group 10 of each vertex.
std::vector<std::size_t> verticesOf(const dxf::Record& record) {
  return record.find_all(10, OdDbGroups(record, kPolyline).range());
}

/// The groups of the vertex at `index`: from its 10 up to the next one, or to the extrusion direction.
dxf::Range vertexRange(const dxf::Record& record, const std::vector<std::size_t>& starts, unsigned index) {
  if (index >= starts.size()) throw OdError_InvalidIndex();
  const dxf::Range part = OdDbGroups(record, kPolyline).range();
  if (index + 1 < starts.size()) return {starts[index], starts[index + 1]};
  const dxf::Range tail{starts[index], part.end};
  return {starts[index], record.find(210, tail).value_or(part.end)};
}

}  // namespace

std::unique_ptr<dxf::Record> OdDbPolyline::newRecord() const {
  return odNewRecord("LWPOLYLINE",
                     {{100, u"AcDbEntity"}, {8, u"0"}, {100, u"AcDbPolyline"}, {90, 0}, {70, 0}, {43, 0.0}});
}

unsigned OdDbPolyline::numVerts() const {
  assertReadEnabled();
  return static_cast<unsigned>(verticesOf(record()).size());
}

OdGePoint2d OdDbPolyline::getPointAt(unsigned index) const {
  assertReadEnabled();
  const dxf::Range range = vertexRange(record(), verticesOf(record()), index);
  const dxf::Point point = record().get_point(range.begin, range.end);
  return {point[0], point[1]};
}

void OdDbPolyline::setPointAt(unsigned index, const OdGePoint2d& point) {
  assertWriteEnabled();
  if (getPointAt(index) == point) return;
  const dxf::Range range = vertexRange(record(), verticesOf(record()), index);
  record().set_point(range.begin, range.end, {point.x, point.y, 0});
  touch();
}

double OdDbPolyline::getBulgeAt(unsigned index) const {
  assertReadEnabled();
  return record().double_or(42, vertexRange(record(), verticesOf(record()), index), 0);
}

void OdDbPolyline::setBulgeAt(unsigned index, double bulge) {
  assertWriteEnabled();
  if (getBulgeAt(index) == bulge) return;
  const dxf::Range range = vertexRange(record(), verticesOf(record()), index);
  if (const auto old = record().find(42, range)) {
    record().set_double(*old, bulge);
  } else {
    const std::size_t before = record().find(91, range).value_or(range.end);
    record().insert_double(before, 42, bulge);
  }
  touch();
}

void OdDbPolyline::addVertexAt(unsigned index, const OdGePoint2d& point, double bulge) {
  assertWriteEnabled();
  const std::vector<std::size_t> starts = verticesOf(record());
  if (index > starts.size()) throw OdError_InvalidIndex();
  std::size_t place;
  if (index < starts.size())
    place = starts[index];
  else if (!starts.empty())
    place = vertexRange(record(), starts, index - 1).end;
  else
    place = record().find(210, groups(kPolyline).range()).value_or(groups(kPolyline).range().end);
  record().insert_double(place, 10, point.x);
  record().insert_double(place + 1, 20, point.y);
  if (bulge != 0) record().insert_double(place + 2, 42, bulge);
  edit(kPolyline).setInteger(90, static_cast<int>(starts.size()) + 1);
  touch();
}

bool OdDbPolyline::isClosed() const { return groups(kPolyline).flag(70, kClosed); }

void OdDbPolyline::setClosed(bool closed) { edit(kPolyline).setFlag(70, kClosed, closed); }

double OdDbPolyline::elevation() const { return groups(kPolyline).real(38, 0); }

void OdDbPolyline::setElevation(double elevation) { edit(kPolyline).setReal(38, elevation, 0); }

OdGeVector3d OdDbPolyline::normal() const { return normalOf(kPolyline); }

void OdDbPolyline::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d unit = normal.normal();
  if (!(unit == this->normal()))
    edit(kPolyline).setPoint(210, {unit.x, unit.y, unit.z}, OdGePoint3d{0, 0, 1});
}

OdResult OdDbPolyline::getPlane(OdGePlane& plane) const {
  plane = OdGePlane(OdGePoint3d() + normal() * elevation(), normal());
  return eOk;
}

void OdDbPolyline::drawGeometry(OdGiWorldDraw& draw) const {
  std::vector<OdBulgeVertex> vertices;
  const double z = elevation();
  const dxf::Range part = groups(kPolyline).range();
  const std::vector<std::size_t> starts = verticesOf(record());
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const dxf::Range range{starts[i], i + 1 < starts.size() ? starts[i + 1] : part.end};
    const dxf::Point point = record().get_point(range.begin, range.end);
    vertices.push_back({{point[0], point[1], z}, record().double_or(42, range, 0)});
  }
  draw.geometry().pushModelTransform(OdGeMatrix3d::planeToWorld(normal()));
  odDrawBulgeLine(draw.geometry(), vertices, isClosed());
  draw.geometry().popModelTransform();
}
