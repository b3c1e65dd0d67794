#include "od/dxf/group.h"

namespace dxf {

Group Group::owning(int code, std::string bytes, std::size_t value_begin, std::size_t value_size,
                    std::uint32_t line) {
  auto owned = std::make_shared<const std::string>(std::move(bytes));
  const std::string_view all = *owned;
  Group group(code, all, all.substr(value_begin, value_size), line);
  group.owned_ = std::move(owned);
  return group;
}

}  // namespace dxf
