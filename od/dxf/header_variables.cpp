#include "od/dxf/header_variables.h"

#include "od/dxf/number_text.h"

namespace dxf {

Record* HeaderVariables::record() const { return file_->header(); }

std::vector<std::string> HeaderVariables::names() const {
  std::vector<std::string> found;
  const Record* header = record();
  if (!header) return found;
  for (const Group& group : *header) {
    if (group.code() == 9) found.emplace_back(trim(group.value()));
  }
  return found;
}

std::optional<Range> HeaderVariables::find(std::string_view name) const {
  const Record* header = record();
  for (std::size_t i = 0; header && i < header->size(); ++i) {
    if ((*header)[i].code() != 9 || trim((*header)[i].value()) != name) continue;
    Range value{i + 1, i + 1};
    while (value.end < header->size() && (*header)[value.end].code() != 9) ++value.end;
    return value;
  }
  return std::nullopt;
}

std::optional<std::size_t> HeaderVariables::value_index(std::string_view name) const {
  const auto range = find(name);
  if (!range) return std::nullopt;
  for (std::size_t i = range->begin; i < range->end; ++i) {
    if ((*record())[i].code() != 999) return i;
  }
  return std::nullopt;
}

double HeaderVariables::double_or(std::string_view name, double fallback) const {
  const auto index = value_index(name);
  return index ? record()->get_double(*index).value_or(fallback) : fallback;
}

std::int64_t HeaderVariables::int_or(std::string_view name, std::int64_t fallback) const {
  const auto index = value_index(name);
  return index ? record()->get_int(*index).value_or(fallback) : fallback;
}

std::u16string HeaderVariables::string_or(std::string_view name, std::u16string_view fallback) const {
  const auto index = value_index(name);
  return index ? record()->get_string(*index) : std::u16string(fallback);
}

Handle HeaderVariables::handle_or(std::string_view name, Handle fallback) const {
  const auto index = value_index(name);
  return index ? record()->get_handle(*index) : fallback;
}

Point HeaderVariables::point_or(std::string_view name, const Point& fallback) const {
  const auto index = value_index(name);
  return index ? record()->get_point(*index, find(name)->end) : fallback;
}

// Appends `9:name` unless the variable is there, and gives the place of its first value.
std::size_t HeaderVariables::add_name(std::string_view name) {
  Record& header = file_->make_header();
  if (const auto range = find(name)) return range->begin;
  header.insert_string(header.size(), 9, std::u16string(name.begin(), name.end()));
  return header.size();
}

void HeaderVariables::set_double(std::string_view name, int code, double value) {
  const auto index = value_index(name);
  if (index) return record()->set_double(*index, value);
  const std::size_t place = add_name(name);
  record()->insert_double(place, code, value);
}

void HeaderVariables::set_int(std::string_view name, int code, std::int64_t value) {
  const auto index = value_index(name);
  if (index) return record()->set_int(*index, value);
  const std::size_t place = add_name(name);
  record()->insert_int(place, code, value);
}

void HeaderVariables::set_string(std::string_view name, int code, std::u16string_view value) {
  const auto index = value_index(name);
  if (index) return record()->set_string(*index, value);
  const std::size_t place = add_name(name);
  record()->insert_string(place, code, value);
}

void HeaderVariables::set_handle(std::string_view name, int code, Handle value) {
  const auto index = value_index(name);
  if (index) return record()->set_handle_value(*index, value);
  const std::size_t place = add_name(name);
  record()->insert_handle(place, code, value);
}

void HeaderVariables::set_point(std::string_view name, int code, const Point& value) {
  const auto index = value_index(name);
  if (index) return record()->set_point(*index, find(name)->end, value);
  const std::size_t place = add_name(name);
  record()->insert_point(place, code, value);
}

}  // namespace dxf
