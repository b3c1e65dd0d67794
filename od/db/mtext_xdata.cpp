#include "od/db/mtext_xdata.h"

std::optional<dxf::Range> OdDbMTextXdata::find(const dxf::Record& record, Name name) {
  const auto data = record.xdata(u"ACAD");
  if (!data) return {};
  std::optional<std::size_t> begin;
  for (std::size_t i = data->begin; i < data->end; ++i) {
    if (record[i].code() != 1000) continue;
    const std::u16string text = record.get_string(i);
    if (!begin && text == name.begin) begin = i + 1;
    if (begin && text == name.end) return dxf::Range{*begin, i};
  }
  return {};
}

std::optional<std::size_t> OdDbMTextXdata::valueOf(const dxf::Record& record, dxf::Range block, int code) {
  for (std::size_t i = block.begin; i + 1 < block.end; i += 2) {
    if (record[i].code() != 1070) return {};
    const auto found = record.get_int(i);
    if (found == code) return i + 1;
    // The list of column heights has no codes between its values.
    if (found == 50)
      i += static_cast<std::size_t>(std::max<std::int64_t>(0, record.get_int(i + 1).value_or(0)));
  }
  return {};
}

double OdDbMTextXdata::real(const dxf::Record& record, Name name, int code, double fallback) {
  const auto block = find(record, name);
  const auto at = block ? valueOf(record, *block, code) : std::nullopt;
  return at ? record.get_double(*at).value_or(fallback) : fallback;
}

std::int64_t OdDbMTextXdata::integer(const dxf::Record& record, Name name, int code, std::int64_t fallback) {
  const auto block = find(record, name);
  const auto at = block ? valueOf(record, *block, code) : std::nullopt;
  return at ? record.get_int(*at).value_or(fallback) : fallback;
}

namespace {

struct Inserter {
  dxf::Record& record;
  std::size_t& at;

  void operator()(int value) const { record.insert_int(at++, 1070, value); }
  void operator()(double value) const { record.insert_double(at++, 1040, value); }
  void operator()(std::int64_t value) const { record.insert_int(at++, 1071, value); }
  void operator()(const std::u16string& value) const { record.insert_string(at++, 1000, value); }
  void operator()(OdDbHandle value) const { record.insert_handle(at++, 1005, value.value()); }
};

std::size_t placeOfNewBlock(dxf::Record& record) {
  if (const auto height = OdDbMTextXdata::find(record, OdDbMTextXdata::kDefinedHeight))
    return height->begin - 1;
  if (!record.xdata(u"ACAD")) record.insert_string(record.size(), 1001, u"ACAD");
  return record.xdata(u"ACAD")->end;
}

}  // namespace

void OdDbMTextXdata::write(dxf::Record& record, Name name, const std::vector<Value>& values) {
  auto block = find(record, name);
  if (!block) {
    const std::size_t place = placeOfNewBlock(record);
    record.insert_string(place, 1000, name.begin);
    record.insert_string(place + 1, 1000, name.end);
    block = find(record, name);
  }
  record.erase(*block);
  std::size_t at = block->begin;
  for (const Value& value : values) {
    if (value.code != 0) record.insert_int(at++, 1070, value.code);
    std::visit(Inserter{record, at}, value.value);
  }
}

void OdDbMTextXdata::remove(dxf::Record& record, Name name) {
  if (const auto block = find(record, name)) record.erase(dxf::Range{block->begin - 1, block->end + 1});
}
