#include "od/db/field_code_form.h"

#include <functional>

#include "od/field/field_markers.h"

namespace {

/// `code` with another reference for each one of the name `from`; one that `translated` has nothing for
/// stays.
OdString withReferences(const OdString& code, std::u16string_view from, std::u16string_view to,
                        const std::function<std::optional<std::uint64_t>(std::uint64_t)>& translated) {
  std::u16string result;
  std::size_t done = 0;
  while (const auto found = odFindReference(code.str(), from, done)) {
    const auto number = translated(found->number);
    result.append(code.str(), done, (number ? found->begin : found->end) - done);
    if (number) result += odFieldReference(to, *number);
    done = found->end;
  }
  return result.append(code.str(), done);
}

}  // namespace

OdString odFieldCodeInMemory(const OdString& code, const std::vector<dxf::Handle>& objects) {
  return withReferences(code, u"\\_ObjIdx", u"\\_ObjId", [&](std::uint64_t index) {
    return index < objects.size() ? std::optional(objects[static_cast<std::size_t>(index)]) : std::nullopt;
  });
}

OdString odFieldCodeInFile(const OdString& code, std::vector<dxf::Handle>& objects) {
  objects.clear();
  return withReferences(code, u"\\_ObjId", u"\\_ObjIdx", [&](std::uint64_t handle) {
    objects.push_back(handle);
    return std::optional<std::uint64_t>(objects.size() - 1);
  });
}
