#include "od/db/mtext_columns.h"

#include <algorithm>
#include <cmath>

#include "od/db/mtext_subclass.h"
#include "od/db/mtext_xdata.h"

namespace {

using Xdata = OdDbMTextXdata;

/// Texts whose heights flow by themselves may leave the number out; the laid-out width tells it.
int countOf(const OdDbEmbeddedMText& embedded) {
  const int count = embedded.integer(72, 0);
  const double pitch = embedded.real(44, 0) + embedded.real(45, 0);
  if (count > 0 || pitch <= 0) return count;
  const double fitting = (embedded.real(42, 0) + embedded.real(45, 0)) / pitch;
  return static_cast<int>(std::lround(std::fmin(std::fmax(fitting, 0), OdDbMTextColumns::kMostColumns)));
}

OdDbMTextColumns readEmbedded(const dxf::Record& record) {
  const OdDbEmbeddedMText embedded(record);
  OdDbMTextColumns columns;
  columns.type = embedded.integer(71, 0);
  if (columns.type == 0) return columns;
  columns.count = std::min(countOf(embedded), OdDbMTextColumns::kMostColumns);
  columns.width = embedded.real(44, 0);
  columns.gutter = embedded.real(45, 0);
  columns.autoHeight = embedded.integer(73, 0) != 0;
  columns.reversed = embedded.integer(74, 0) != 0;
  for (const std::size_t i : record.find_all(46, embedded.range())) {
    columns.heights.push_back(record.get_double(i).value_or(0));
  }
  return columns;
}

OdDbMTextColumns readXdata(const dxf::Record& record, dxf::Range block) {
  OdDbMTextColumns columns;
  columns.type = static_cast<int>(Xdata::integer(record, Xdata::kColumnInfo, 75, 0));
  columns.count = static_cast<int>(std::clamp<std::int64_t>(Xdata::integer(record, Xdata::kColumnInfo, 76, 0),
                                                            0, OdDbMTextColumns::kMostColumns));
  columns.width = Xdata::real(record, Xdata::kColumnInfo, 48, 0);
  columns.gutter = Xdata::real(record, Xdata::kColumnInfo, 49, 0);
  columns.autoHeight = Xdata::integer(record, Xdata::kColumnInfo, 79, 0) != 0;
  columns.reversed = Xdata::integer(record, Xdata::kColumnInfo, 78, 0) != 0;
  if (const auto heights = Xdata::valueOf(record, block, 50)) {
    const auto count =
        static_cast<std::size_t>(std::max<std::int64_t>(0, record.get_int(*heights).value_or(0)));
    for (std::size_t i = *heights + 1; i < block.end && columns.heights.size() < count; ++i) {
      columns.heights.push_back(record.get_double(i).value_or(0));
    }
  }
  return columns;
}

void writeXdata(dxf::Record& record, const OdDbMTextColumns& columns) {
  if (columns.type == 0) {
    Xdata::remove(record, Xdata::kColumnInfo);
    Xdata::remove(record, Xdata::kColumns);
    return;
  }
  std::vector<Xdata::Value> values = {{75, columns.type},  {79, columns.autoHeight ? 1 : 0},
                                      {76, columns.count}, {78, columns.reversed ? 1 : 0},
                                      {48, columns.width}, {49, columns.gutter}};
  if (columns.type == 2 && !columns.autoHeight && !columns.heights.empty()) {
    values.push_back({50, static_cast<int>(columns.heights.size())});
    for (const double height : columns.heights) values.push_back({0, height});
  }
  Xdata::write(record, Xdata::kColumnInfo, values);
}

/// An embedded object with the text's own data once more, and no columns yet.
void insertEmbedded(dxf::Record& record) {
  const OdDbGroups text(record, odMTextSubclass());
  const OdGePoint3d direction = text.point(11, {1, 0, 0}), location = text.point(10);
  const int attachment = text.integer(71, 1);
  const double width = text.real(41, 0), height = text.real(46, 0);
  std::size_t at = record.xdata_begin();
  record.insert_string(at++, 101, u"Embedded Object");
  record.insert_int(at++, 70, attachment);
  record.insert_point(at, 10, {direction.x, direction.y, direction.z});
  record.insert_point(at += 3, 11, {location.x, location.y, location.z});
  at += 3;
  const std::pair<int, double> sizes[] = {{40, width}, {41, height}, {42, 0.0}, {43, 0.0}};
  for (const auto& [code, value] : sizes) record.insert_double(at++, code, value);
  record.insert_int(at, 71, 0);
}

void setOrAppend(dxf::Record& record, int code, std::int64_t value) {
  const dxf::Range range = *record.embedded_object();
  const auto at = record.find(code, range);
  if (!at) return record.insert_int(range.end, code, value);
  if (record.get_int(*at) != value) record.set_int(*at, value);
}

void setOrAppend(dxf::Record& record, int code, double value) {
  const dxf::Range range = *record.embedded_object();
  const auto at = record.find(code, range);
  if (!at) return record.insert_double(range.end, code, value);
  if (record.get_double(*at) != value) record.set_double(*at, value);
}

void eraseAll(dxf::Record& record, int code) {
  const std::vector<std::size_t> found = record.find_all(code, *record.embedded_object());
  for (auto at = found.rbegin(); at != found.rend(); ++at) record.erase(*at);
}

void writeEmbedded(dxf::Record& record, const OdDbMTextColumns& columns) {
  if (!record.embedded_object()) insertEmbedded(record);
  setOrAppend(record, 71, std::int64_t{columns.type});
  if (columns.type == 0) {
    for (const int code : {72, 44, 45, 73, 74, 46}) eraseAll(record, code);
    return;
  }
  const OdDbMTextColumns old = readEmbedded(record);
  if (old.count != columns.count || !record.find(72, *record.embedded_object()))
    setOrAppend(record, 72, std::int64_t{columns.count});
  setOrAppend(record, 44, columns.width);
  setOrAppend(record, 45, columns.gutter);
  setOrAppend(record, 73, std::int64_t{columns.autoHeight});
  setOrAppend(record, 74, std::int64_t{columns.reversed});
  if (old.heights == columns.heights) return;
  eraseAll(record, 46);
  for (const double height : columns.heights) {
    record.insert_double(record.embedded_object()->end, 46, height);
  }
}

}  // namespace

OdDbMTextColumns OdDbMTextColumns::read(const dxf::Record& record) {
  if (record.embedded_object()) return readEmbedded(record);
  if (const auto block = Xdata::find(record, Xdata::kColumnInfo)) return readXdata(record, *block);
  return {};
}

void OdDbMTextColumns::write(dxf::Record& record) const {
  if (read(record) == *this) return;
  if (record.embedded_object() || record.manner().version >= dxf::R2018)
    writeEmbedded(record, *this);
  else
    writeXdata(record, *this);
}
