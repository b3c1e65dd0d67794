#include "od/db/object_properties.h"

#include "od/db/OdDbArc.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/db/curve_measures.h"

namespace {

using Value = std::optional<OdFieldValue>;

OdFieldPoint pointOf(const OdGePoint3d& point) { return {point.x, point.y, point.z}; }

OdString nameOf(const OdCmEntityColor& color) {
  if (color.isByLayer()) return u"ByLayer";
  if (color.isByBlock()) return u"ByBlock";
  const auto number = [](int value) { return OdString(odToUtf16(std::to_string(value))); };
  if (!color.isByColor()) return number(color.colorIndex());
  return number(color.red()) + OdString(u",") + number(color.green()) + OdString(u",") + number(color.blue());
}

Value real(std::optional<double> value) { return value ? Value(*value) : Value(); }

/// A property of entities of one class; nothing of others.
template <typename T, auto Read>
Value of(const OdDbEntity& entity) {
  const T* object = dynamic_cast<const T*>(&entity);
  return object ? Value(Read(*object)) : Value();
}

Value radiusOf(const OdDbEntity& entity) {
  if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity)) return circle->radius();
  return of<OdDbArc, [](const OdDbArc& arc) { return OdFieldValue(arc.radius()); }>(entity);
}

Value diameterOf(const OdDbEntity& entity) {
  return of<OdDbCircle, [](const OdDbCircle& circle) { return OdFieldValue(2 * circle.radius()); }>(entity);
}

Value centerOf(const OdDbEntity& entity) {
  if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity)) return pointOf(circle->center());
  return of<OdDbArc, [](const OdDbArc& arc) { return OdFieldValue(pointOf(arc.center())); }>(entity);
}

Value textOf(const OdDbEntity& entity) {
  if (const auto* text = dynamic_cast<const OdDbMText*>(&entity)) return text->contents();
  return of<OdDbText, [](const OdDbText& text) { return OdFieldValue(text.textString()); }>(entity);
}

Value heightOf(const OdDbEntity& entity) {
  if (const auto* text = dynamic_cast<const OdDbMText*>(&entity)) return text->textHeight();
  return of<OdDbText, [](const OdDbText& text) { return OdFieldValue(text.height()); }>(entity);
}

Value placeOf(const OdDbEntity& entity) {
  if (const auto* text = dynamic_cast<const OdDbMText*>(&entity)) return pointOf(text->location());
  return of<OdDbText, [](const OdDbText& text) { return OdFieldValue(pointOf(text.position())); }>(entity);
}

struct Property {
  std::u16string_view name;
  Value (*read)(const OdDbEntity&);
};

constexpr Property kProperties[] = {
    {u"Layer", [](const OdDbEntity& entity) { return Value(entity.layer()); }},
    {u"Color", [](const OdDbEntity& entity) { return Value(nameOf(entity.color())); }},
    {u"Linetype", [](const OdDbEntity& entity) { return Value(entity.linetype()); }},
    {u"LinetypeScale", [](const OdDbEntity& entity) { return Value(entity.linetypeScale()); }},
    {u"Lineweight", [](const OdDbEntity& entity) { return Value(std::int32_t{entity.lineWeight()}); }},
    {u"Length", [](const OdDbEntity& entity) { return real(odCurveLength(entity)); }},
    {u"ArcLength", [](const OdDbEntity& entity) { return real(odCurveLength(entity)); }},
    {u"Circumference", [](const OdDbEntity& entity) { return real(odCurveLength(entity)); }},
    {u"Area", [](const OdDbEntity& entity) { return real(odCurveArea(entity)); }},
    {u"Radius", radiusOf},
    {u"Diameter", diameterOf},
    {u"Center", centerOf},
    {u"StartPoint",
     of<OdDbLine, [](const OdDbLine& line) { return OdFieldValue(pointOf(line.startPoint())); }>},
    {u"EndPoint", of<OdDbLine, [](const OdDbLine& line) { return OdFieldValue(pointOf(line.endPoint())); }>},
    {u"StartAngle",
     of<OdDbArc, [](const OdDbArc& arc) { return OdFieldValue(OdFieldAngle{arc.startAngle()}); }>},
    {u"EndAngle", of<OdDbArc, [](const OdDbArc& arc) { return OdFieldValue(OdFieldAngle{arc.endAngle()}); }>},
    {u"TextString", textOf},
    {u"Contents", textOf},
    {u"Height", heightOf},
    {u"InsertionPoint", placeOf},
    {u"Rotation",
     of<OdDbText, [](const OdDbText& text) { return OdFieldValue(OdFieldAngle{text.rotation()}); }>},
};

}  // namespace

std::optional<OdFieldValue> odObjectProperty(const OdDbEntity& entity, std::u16string_view name) {
  for (const Property& property : kProperties)
    if (odEqualNoCase(property.name, name)) return property.read(entity);
  return {};
}
