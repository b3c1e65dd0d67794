#include "od/db/new_record.h"

namespace {

const std::shared_ptr<const dxf::Manner>& newestManner() {
  static const auto manner = [] {
    dxf::Manner made;
    made.version = dxf::R2018;
    made.codec = dxf::TextCodec::utf8(dxf::Form::ascii);
    return std::make_shared<const dxf::Manner>(std::move(made));
  }();
  return manner;
}

void append(dxf::Record& record, const OdNewGroup& group) {
  struct Visitor {
    dxf::Record& record;
    int code;
    void operator()(double value) const { record.insert_double(record.size(), code, value); }
    void operator()(int value) const { record.insert_int(record.size(), code, value); }
    void operator()(std::u16string_view value) const { record.insert_string(record.size(), code, value); }
    void operator()(const OdGePoint3d& p) const { record.insert_point(record.size(), code, {p.x, p.y, p.z}); }
  };
  std::visit(Visitor{record, group.code}, group.value);
}

void copyGroup(const dxf::Record& from, std::size_t index, dxf::Record& to) {
  const int code = from[index].code();
  const std::size_t end = to.size();
  switch (from[index].type()) {
    case dxf::ValueType::real:
      return to.insert_double(end, code, from.get_double(index).value_or(0));
    case dxf::ValueType::int16:
    case dxf::ValueType::int32:
    case dxf::ValueType::int64:
    case dxf::ValueType::boolean:
      return to.insert_int(end, code, from.get_int(index).value_or(0));
    case dxf::ValueType::handle:
      return to.insert_handle(end, code, from.get_handle(index));
    case dxf::ValueType::binary:
      return to.insert_binary(end, code, from.get_binary(index).value_or(""));
    case dxf::ValueType::string:
    case dxf::ValueType::unknown:
      return to.insert_string(end, code, from.get_string(index));
  }
}

}  // namespace

std::unique_ptr<dxf::Record> odNewRecord(std::string_view type, std::initializer_list<OdNewGroup> groups) {
  auto record = std::make_unique<dxf::Record>(newestManner(), type);
  for (const OdNewGroup& group : groups) append(*record, group);
  return record;
}

void odRewriteGroups(const dxf::Record& record, dxf::Record& target) {
  const bool markers = target.manner().version >= dxf::R13;
  for (std::size_t i = 1; i < record.size(); ++i) {
    if (record[i].code() != 100 || markers) copyGroup(record, i, target);
  }
}
