#include "od/dxf/record.h"

#include <algorithm>

#include "od/dxf/number_text.h"

namespace dxf {

Record::Record(std::shared_ptr<const Manner> manner, std::vector<Group> groups)
    : manner_(std::move(manner)), groups_(std::move(groups)) {}

Record::Record(std::shared_ptr<const Manner> manner, std::string_view type)
    : manner_(std::move(manner)), changed_(true) {
  groups_.push_back(manner_->make(0, type));
}

Record::Record(const Record& other) : manner_(other.manner_), groups_(other.groups_), changed_(true) {}

std::string_view Record::trimmed(std::size_t index) const { return trim(groups_[index].value()); }

std::string_view Record::type() const {
  return groups_.empty() || groups_.front().code() != 0 ? std::string_view() : trimmed(0);
}

std::optional<std::size_t> Record::handle_index() const {
  // The group 5 of a section is the value of a header variable, in an old dimension style a block's name.
  if (is("SECTION")) return std::nullopt;
  if (is("DIMSTYLE")) return find(105, preamble());
  const auto index = find(5, preamble());
  const auto entity = subclass("AcDbEntity");
  return index || !entity ? index : find(5, *entity);
}

Handle Record::handle() const {
  const auto index = handle_index();
  return index ? get_handle(*index) : 0;
}

void Record::set_handle(Handle handle) {
  const auto index = handle_index();
  if (index) {
    set_handle_value(*index, handle);
  } else {
    insert_handle(1, is("DIMSTYLE") ? 105 : 5, handle);
  }
}

Handle Record::owner() const { return handle_or(330, preamble(), 0); }

void Record::set_owner(Handle owner) {
  const auto index = find(330, preamble());
  if (index) {
    set_handle_value(*index, owner);
  } else if (has_markers()) {
    insert_handle(preamble().end, 330, owner);
  } else {
    insert_handle(handle_index().value_or(0) + 1, 330, owner);
  }
}

void Record::replace(std::size_t index, std::string_view value) {
  if (groups_[index].value() == value) return;
  groups_[index] = manner_->with_value(groups_[index], value);
  changed_ = true;
}

void Record::insert(std::size_t index, const Group& group) {
  groups_.insert(groups_.begin() + static_cast<std::ptrdiff_t>(index), group);
  changed_ = true;
}

void Record::erase(std::size_t index) { erase(Range{index, index + 1}); }

void Record::erase(Range range) {
  if (range.empty()) return;
  const auto first = groups_.begin() + static_cast<std::ptrdiff_t>(range.begin);
  groups_.erase(first, groups_.begin() + static_cast<std::ptrdiff_t>(range.end));
  changed_ = true;
}

}  // namespace dxf
