#include "od/base/unicode.h"
#include "od/dxf/number_text.h"
#include "od/dxf/record.h"

namespace dxf {

std::size_t Record::xdata_begin() const {
  std::size_t index = 0;
  while (index < size() && groups_[index].code() != 1001) ++index;
  return index;
}

std::size_t Record::body_end() const {
  std::size_t index = 0;
  while (index < size() && groups_[index].code() != 1001 && groups_[index].code() != 101) ++index;
  return index;
}

bool Record::has_markers() const { return preamble().end < body_end(); }

Range Record::body() const {
  const std::size_t end = body_end();
  return {std::min<std::size_t>(1, end), end};
}

Range Record::preamble() const {
  Range range = body();
  for (std::size_t index = range.begin; index < range.end; ++index) {
    if (groups_[index].code() == 100) range.end = index;
  }
  return range;
}

std::optional<Range> Record::subclass(std::string_view marker, std::size_t occurrence) const {
  const Range all = body();
  std::size_t index = preamble().end;
  if (index == all.end) return all;
  for (; index < all.end; ++index) {
    if (groups_[index].code() != 100 || trimmed(index) != marker || occurrence-- > 0) continue;
    Range found{index + 1, index + 1};
    while (found.end < all.end && groups_[found.end].code() != 100) ++found.end;
    return found;
  }
  return std::nullopt;
}

std::optional<Range> Record::embedded_object() const {
  const std::size_t mark = body_end();
  if (mark == size() || groups_[mark].code() != 101) return std::nullopt;
  return Range{mark + 1, xdata_begin()};
}

std::optional<Range> Record::xdata(std::u16string_view application) const {
  for (std::size_t index = xdata_begin(); index < size(); ++index) {
    if (groups_[index].code() != 1001 || !odEqualNoCase(get_string(index), application)) continue;
    Range found{index + 1, index + 1};
    while (found.end < size() && groups_[found.end].code() != 1001) ++found.end;
    return found;
  }
  return std::nullopt;
}

std::optional<Range> Record::application_group(std::string_view name) const {
  const std::string opening = "{" + std::string(name);
  const std::size_t end = body_end();
  for (std::size_t index = 0; index < end; ++index) {
    if (groups_[index].code() != 102 || trimmed(index) != opening) continue;
    Range found{index + 1, index + 1};
    while (found.end < size() && groups_[found.end].code() != 102) ++found.end;
    if (found.end < size()) return found;
  }
  return std::nullopt;
}

// The index behind the application group that opens at `index`, or 0 where none opens or it has no end.
std::size_t Record::skip_application_group(std::size_t index, std::size_t end) const {
  if (groups_[index].code() != 102 || !trimmed(index).starts_with('{')) return 0;
  for (++index; index < end; ++index) {
    if (groups_[index].code() == 102) return trimmed(index).ends_with('}') ? index + 1 : 0;
  }
  return 0;
}

template <typename Visit>
void Record::visit(int code, Range range, Visit visit) const {
  // In an extension record 102 is data like any other.
  const bool has_groups = code != 102 && !is("XRECORD");
  for (std::size_t index = range.begin; index < range.end && index < size();) {
    const std::size_t behind = has_groups ? skip_application_group(index, range.end) : 0;
    if (behind == 0 && groups_[index].code() == code && !visit(index)) return;
    index = behind ? behind : index + 1;
  }
}

std::optional<std::size_t> Record::find(int code, Range range) const {
  std::optional<std::size_t> found;
  visit(code, range, [&](std::size_t index) {
    found = index;
    return false;
  });
  return found;
}

std::vector<std::size_t> Record::find_all(int code, Range range) const {
  std::vector<std::size_t> found;
  visit(code, range, [&](std::size_t index) {
    found.push_back(index);
    return true;
  });
  return found;
}

}  // namespace dxf
