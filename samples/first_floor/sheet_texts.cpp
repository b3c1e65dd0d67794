#include <cmath>
#include <numbers>
#include <utility>

#include "od/dxf/chunked_text.h"
#include "samples/first_floor/groups.h"
#include "samples/first_floor/sheet.h"

namespace samples {
namespace {

constexpr int kAligned = 3;
constexpr int kFit = 5;

// Rounded, so that a quarter turn is one.
double rounded(double value) { return std::round(value * 1e12) / 1e12; }

Position direction_of(double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  return {rounded(std::cos(angle)), rounded(std::sin(angle))};
}

double degrees_between(Position from, Position to) {
  return std::atan2(to.y - from.y, to.x - from.x) * 180 / std::numbers::pi;
}

void write_columns(Groups& groups, const Paragraphs& text) {
  const Columns& columns = text.columns;
  const double whole = columns.count * columns.width + (columns.count - 1) * columns.gutter;
  groups.mark(101, "Embedded Object").integer(70, text.attachment).point(10, direction_of(text.rotation));
  groups.point(11, text.at)
      .real(40, text.width)
      .real(41, columns.height)
      .real(42, whole)
      .real(43, columns.height);
  groups.integer(71, 1).integer(72, columns.count).real(44, columns.width).real(45, columns.gutter);
  groups.integer(73, 0).integer(74, 0);
}

}  // namespace

void Sheet::text(const Line& text) {
  const bool between_points = text.horizontal == kAligned || text.horizontal == kFit;
  Groups groups(entity("TEXT"));
  groups.mark(100, "AcDbText").point(10, text.at).real(40, text.height).string(1, text.text);
  groups.real(50, between_points ? degrees_between(text.at, text.second) : text.rotation);
  groups.string(7, text.style);
  if (text.horizontal != 0) groups.integer(72, text.horizontal);
  if (text.horizontal != 0 || text.vertical != 0) groups.point(11, between_points ? text.second : text.at);
  groups.mark(100, "AcDbText");
  if (text.vertical != 0) groups.integer(73, text.vertical);
}

void Sheet::paragraphs(const Paragraphs& text) {
  Groups groups(entity("MTEXT"));
  groups.mark(100, "AcDbMText").point(10, text.at).real(40, text.height).real(41, text.width);
  groups.real(46, text.columns.height).integer(71, text.attachment).integer(72, 5);
  dxf::Record& record = groups.record();
  dxf::write_chunked_text(record, {record.size(), record.size()}, record.size(), text.text);
  groups.string(7, text.style);
  if (text.rotation != 0) groups.point(11, direction_of(text.rotation));
  groups.integer(73, 1).real(44, text.line_spacing);
  if (text.background != 0) groups.integer(90, 1).integer(63, text.background).real(45, 1.25).integer(441, 0);
  if (text.columns.count > 0) write_columns(groups, text);
}

void Sheet::middle_text(dxf::Record& record, std::u16string_view text, Position at, double height) {
  Groups groups(record);
  groups.mark(100, "AcDbText").point(10, at).real(40, height).string(1, text);
  groups.mark(7, "Standard").integer(72, 1).point(11, at);
}

void Sheet::attribute_definition(std::u16string_view tag, std::u16string_view prompt, double height) {
  dxf::Record& made = entity("ATTDEF");
  middle_text(made, u"000", {}, height);
  Groups groups(made);
  groups.mark(100, "AcDbAttributeDefinition").integer(280, 0).string(3, prompt).string(2, tag);
  groups.integer(70, 0).integer(74, 2).integer(280, 1);
}

void Sheet::insert_with_attribute(const Placement& placement, std::u16string_view tag,
                                  std::u16string_view value, double height) {
  insert(placement);
  dxf::Record& placed = *place_->previous();
  placed.insert_int(*placed.find(2, placed.whole()), 66, 1);
  const dxf::Handle space = std::exchange(owner_, placed.handle());
  dxf::Record& attribute = entity("ATTRIB");
  middle_text(attribute, value, placement.at, height);
  Groups groups(attribute);
  groups.mark(100, "AcDbAttribute")
      .integer(280, 0)
      .string(2, tag)
      .integer(70, 0)
      .integer(74, 2)
      .integer(280, 1);
  entity("SEQEND");
  owner_ = space;
}

}  // namespace samples
