#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "od/dxf/group.h"
#include "od/dxf/manner.h"

namespace dxf {

/// The number by which the objects of a drawing name each other; 0 names nothing.
using Handle = std::uint64_t;

/// x, y and z of a point.
using Point = std::array<double, 3>;

/// Groups of a record from index `begin` up to `end`, which is not included. Inserting and erasing groups
/// before the end of a range makes it stale.
struct Range {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool empty() const { return begin >= end; }
};

/// The groups from one group 0 up to the next, in file order: an entity, an object, a table entry, or a mark
/// such as SECTION or ENDTAB. Everything that is known of an object stands in its record and nowhere else.
///
/// Reading gives typed values, setting writes them in the manner of the file. A value that is set to what
/// already stands there keeps its bytes.
class Record {
 public:
  /// Groups as they were read. The first is the group 0, except in the remarks at the top of a file.
  Record(std::shared_ptr<const Manner> manner, std::vector<Group> groups);
  /// A new record with the group 0 alone.
  Record(std::shared_ptr<const Manner> manner, std::string_view type);
  /// A copy is not in a list, and shares the file's bytes.
  Record(const Record& other);
  Record& operator=(const Record&) = delete;

  /// The value of group 0, empty for the remarks at the top of a file.
  std::string_view type() const;
  bool is(std::string_view name) const { return type() == name; }
  /// The object's own handle (105 in dimension styles), 0 if it has none.
  Handle handle() const;
  /// Replaces the handle, or inserts it behind the group 0.
  void set_handle(Handle handle);
  /// The handle 330 in front of the first subclass marker, 0 if there is none.
  Handle owner() const;
  /// Replaces the owner, or inserts it in front of the first subclass marker.
  void set_owner(Handle owner);
  /// True when the record was made or a group of it was set, inserted or erased.
  bool changed() const { return changed_; }
  const Manner& manner() const { return *manner_; }

  std::size_t size() const { return groups_.size(); }
  const Group& operator[](std::size_t index) const { return groups_[index]; }
  auto begin() const { return groups_.begin(); }
  auto end() const { return groups_.end(); }

  /// Neighbours in the file's order; null at its ends.
  Record* next() const { return next_; }
  Record* previous() const { return previous_; }

  /// All groups, with the group 0.
  Range whole() const { return {0, groups_.size()}; }
  /// Behind the group 0 up to the embedded object or the extended data.
  Range body() const;
  /// Behind the group 0 up to the first subclass marker; the whole body where there are no markers.
  Range preamble() const;
  /// Behind `100:marker` up to the next marker, the embedded object or the extended data. `occurrence` counts
  /// equal markers from 0. In a record without any marker (R12 and older) the body; else nothing if the
  /// marker is missing.
  std::optional<Range> subclass(std::string_view marker, std::size_t occurrence = 0) const;
  /// Behind `101` up to the extended data.
  std::optional<Range> embedded_object() const;
  /// Behind `1001:application` up to the next application; names compare without case.
  std::optional<Range> xdata(std::u16string_view application) const;
  /// Where the extended data begin: the index of the first 1001, or `size()`.
  std::size_t xdata_begin() const;
  /// Between `102:{NAME` and its closing 102; `name` without the brace.
  std::optional<Range> application_group(std::string_view name) const;

  /// Index of the first group `code` in `range`. Groups between `102:{NAME` and its end are passed over,
  /// unless the range lies inside them.
  std::optional<std::size_t> find(int code, Range range) const;
  /// Indices of all groups `code` in `range`, under the same rule.
  std::vector<std::size_t> find_all(int code, Range range) const;

  /// The value at `index`; nothing where it cannot be read as that type. A real is always finite.
  std::optional<double> get_double(std::size_t index) const;
  /// Accepts integers written as reals.
  std::optional<std::int64_t> get_int(std::size_t index) const;
  /// Strings, decoded; numbers of a text drawing as they are written.
  std::u16string get_string(std::size_t index) const;
  /// 0 where the value is no handle.
  Handle get_handle(std::size_t index) const;
  /// The bytes of a binary value.
  std::optional<std::string> get_binary(std::size_t index) const;
  /// The point whose x stands at `x_index`. y and z are looked for behind it, up to the next point of the
  /// same code and `end`; those that are missing are 0.
  Point get_point(std::size_t x_index, std::size_t end) const;

  /// The first value of `code` in `range`, or `fallback` where it is missing or cannot be read.
  double double_or(int code, Range range, double fallback) const;
  std::int64_t int_or(int code, Range range, std::int64_t fallback) const;
  std::u16string string_or(int code, Range range, std::u16string_view fallback) const;
  Handle handle_or(int code, Range range, Handle fallback) const;
  Point point_or(int code, Range range, const Point& fallback) const;

  /// Replaces the value at `index`. Throws `OdError(eInvalidInput)` for a value that the code cannot hold.
  void set_double(std::size_t index, double value);
  void set_int(std::size_t index, std::int64_t value);
  void set_string(std::size_t index, std::u16string_view value);
  void set_handle_value(std::size_t index, Handle value);
  void set_binary(std::size_t index, std::string_view data);
  /// Sets the point whose x stands at `x_index`; a missing y is inserted behind x, a missing z behind y if it
  /// is not 0. `end` as for `get_point`.
  void set_point(std::size_t x_index, std::size_t end, const Point& value);

  /// Inserts a group in front of `index` (at the end for `size()`).
  void insert_double(std::size_t index, int code, double value);
  void insert_int(std::size_t index, int code, std::int64_t value);
  void insert_string(std::size_t index, int code, std::u16string_view value);
  void insert_handle(std::size_t index, int code, Handle value);
  void insert_binary(std::size_t index, int code, std::string_view data);
  /// Inserts three groups, `code`, `code` + 10 and `code` + 20.
  void insert_point(std::size_t index, int code, const Point& value);
  /// Inserts a copy of a group of the same file.
  void insert(std::size_t index, const Group& group);

  void erase(std::size_t index);
  void erase(Range range);

 private:
  friend class RecordList;

  std::string_view trimmed(std::size_t index) const;
  void replace(std::size_t index, std::string_view value);
  std::optional<std::size_t> handle_index() const;
  std::size_t body_end() const;
  bool has_markers() const;
  std::size_t skip_application_group(std::size_t index, std::size_t end) const;
  template <typename Visit>
  void visit(int code, Range range, Visit visit) const;
  int width_at(std::size_t index) const;
  std::optional<std::size_t> coordinate(std::size_t x_index, std::size_t end, int offset) const;

  std::shared_ptr<const Manner> manner_;
  std::vector<Group> groups_;
  Record* next_ = nullptr;
  Record* previous_ = nullptr;
  bool changed_ = false;
};

}  // namespace dxf
