#include "micui/hit_path.h"

#include <algorithm>

#include "micui/transform.h"

namespace micui {

namespace {

control_path with_root(control& root, control_path below) {
  below.insert(below.begin(), control_ptr(&root));
  return below;
}

}  // namespace

control_path hit_path(control& root, const OdGePoint2d& point) {
  const OdGePoint2d local = to_local(root, point);
  control_path below = root.path_in_children(local);
  if (below.empty() && !root.contains(local)) return {};
  return with_root(root, std::move(below));
}

control_path path_to(control& root, std::u16string_view name) {
  control_path below = root.path_of(name);
  if (below.empty() && root.name != name) return {};
  return with_root(root, std::move(below));
}

control_ptr path_find(const control_path& path, std::u16string_view name) {
  const auto found =
      std::find_if(path.begin(), path.end(), [&](const control_ptr& each) { return each->name == name; });
  return found == path.end() ? control_ptr() : *found;
}

control_path path_prefix(const control_path& path, const control_ptr& last) {
  const auto found = std::find(path.begin(), path.end(), last);
  return {path.begin(), found == path.end() ? found : found + 1};
}

}  // namespace micui
