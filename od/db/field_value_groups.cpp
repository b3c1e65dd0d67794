#include "od/db/field_value_groups.h"

#include "od/dxf/chunked_text.h"

namespace {

/// Numbers of the kinds of values in files.
enum ValueType {
  kUnknown = 0,
  kLong = 1,
  kDouble = 2,
  kString = 4,
  kDate = 8,
  kPoint3d = 32,
  kObjectId = 64
};

constexpr dxf::ChunkCodes kStringPieces{2, 1};

void appendInt(dxf::Record& record, int code, std::int64_t value) {
  record.insert_int(record.size(), code, value);
}

/// Eight numbers of 16 bits, the low byte first.
std::string bytesOf(const OdFieldDate& date) {
  std::string bytes;
  for (const int number : {date.year, date.month, date.weekday, date.day, date.hour, date.minute, date.second,
                           date.millisecond}) {
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
  }
  return bytes;
}

/// Appends type and data of a value.
struct DataWriter {
  dxf::Record& record;

  void operator()(std::monostate) const {
    appendInt(record, 90, kUnknown);
    if (record.manner().version < dxf::R2007) appendInt(record, 91, 0);
  }
  void operator()(std::int32_t value) const {
    appendInt(record, 90, kLong);
    appendInt(record, 91, value);
  }
  void operator()(double value) const {
    appendInt(record, 90, kDouble);
    record.insert_double(record.size(), 140, value);
  }
  void operator()(const OdFieldAngle& angle) const { (*this)(angle.radians); }
  void operator()(const OdString& text) const {
    appendInt(record, 90, kString);
    dxf::write_chunked_text(record, {record.size(), record.size()}, record.size(), text.str(), kStringPieces);
  }
  void operator()(const OdFieldDate& date) const {
    const std::string bytes = bytesOf(date);
    appendInt(record, 90, kDate);
    appendInt(record, 92, static_cast<std::int64_t>(bytes.size()));
    record.insert_binary(record.size(), 310, bytes);
  }
  void operator()(const OdFieldPoint& point) const {
    appendInt(record, 90, kPoint3d);
    record.insert_point(record.size(), 11, {point.x, point.y, point.z});
  }
};

void begin(dxf::Record& record, bool hasData) {
  constexpr int kNoData = 1;
  if (record.manner().version >= dxf::R2007) appendInt(record, 93, hasData ? 0 : kNoData);
}

void finish(dxf::Record& record, const OdString& format) {
  if (record.manner().version < dxf::R2007) return;
  appendInt(record, 94, 0);
  record.insert_string(record.size(), 300, format.str());
  record.insert_string(record.size(), 302, u"");
  record.insert_string(record.size(), 304, u"ACVALUE_END");
}

}  // namespace

void odAppendFieldValue(dxf::Record& record, const OdFieldValue& value, const OdString& format) {
  begin(record, !std::holds_alternative<std::monostate>(value));
  std::visit(DataWriter{record}, value);
  finish(record, format);
}

void odAppendObjectValue(dxf::Record& record, dxf::Handle object) {
  begin(record, true);
  appendInt(record, 90, kObjectId);
  record.insert_handle(record.size(), 330, object);
  finish(record, {});
}
