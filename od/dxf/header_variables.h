#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "od/dxf/file.h"

namespace dxf {

/// The header variables of a drawing: `9:$NAME` and the groups behind it, all in the record of the section
/// HEADER. A view: it holds no state but the record's address.
class HeaderVariables {
 public:
  explicit HeaderVariables(File& file) : file_(&file) {}

  /// Names in file order, with their `$`.
  std::vector<std::string> names() const;

  /// The record that holds the variables, null if the drawing has no section HEADER.
  Record* record() const;
  /// The groups of the variable's value in `record()`; `name` with its `$`.
  std::optional<Range> find(std::string_view name) const;

  double double_or(std::string_view name, double fallback) const;
  std::int64_t int_or(std::string_view name, std::int64_t fallback) const;
  std::u16string string_or(std::string_view name, std::u16string_view fallback) const;
  Handle handle_or(std::string_view name, Handle fallback) const;
  Point point_or(std::string_view name, const Point& fallback) const;

  /// Sets the first group of the variable. A missing variable is added behind the others with the group
  /// `code`, a missing section in front of all others.
  void set_double(std::string_view name, int code, double value);
  void set_int(std::string_view name, int code, std::int64_t value);
  void set_string(std::string_view name, int code, std::u16string_view value);
  void set_handle(std::string_view name, int code, Handle value);
  void set_point(std::string_view name, int code, const Point& value);

 private:
  std::optional<std::size_t> value_index(std::string_view name) const;
  std::size_t add_name(std::string_view name);

  File* file_;
};

}  // namespace dxf
