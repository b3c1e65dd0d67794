#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "od/dxf/group.h"
#include "od/dxf/manner.h"

namespace dxf {

/// Cuts the bytes of a drawing into groups. The bytes have to outlive the groups.
class GroupReader {
 public:
  virtual ~GroupReader() = default;

  /// The next group, or nothing at the end of the data. Throws `Error` where a group is damaged.
  virtual std::optional<Group> next() = 0;

  /// Number of bytes that belong to the groups read so far and to the head.
  std::size_t position() const { return position_; }
  /// Number of bytes in front of the first group.
  std::size_t head_size() const { return head_size_; }

 protected:
  GroupReader(std::string_view bytes, std::string name) : bytes_(bytes), name_(std::move(name)) {}

  std::string_view bytes_;
  std::string name_;
  std::size_t position_ = 0;
  std::size_t head_size_ = 0;
};

/// A reader for the form that the first bytes show. Sets `form`, `one_byte_codes` and `line_end` of `manner`.
std::unique_ptr<GroupReader> open_reader(std::string_view bytes, const std::string& name, Manner& manner);

}  // namespace dxf
