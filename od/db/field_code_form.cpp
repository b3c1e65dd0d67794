#include "od/db/field_code_form.h"

#include <functional>

#include "od/field/field_markers.h"

namespace {

/// `code` with another reference for each one of the name `from`; one that `translated` has nothing for
/// stays.
OdString withReferences(const OdString& code, std::u16string_view from, std::u16string_view to,
                        const std::function<std::optional<std::uint64_t>(std::uint64_t)>& translated) {
  std::u16string result;
  for (const auto& [letters, reference] : odSplitAtReferences(code.str(), from)) {
    result += letters;
    if (!reference) continue;
    const auto number = translated(reference->number);
    result += number ? odFieldReference(to, *number) : std::u16string(reference->in(code.str()));
  }
  return result;
}

}  // namespace

OdString odFieldCodeInMemory(const OdString& code, const std::vector<dxf::Handle>& objects) {
  return withReferences(code, u"\\_ObjIdx", kOdObjectReference, [&](std::uint64_t index) {
    return index < objects.size() ? std::optional(objects[static_cast<std::size_t>(index)]) : std::nullopt;
  });
}

OdString odFieldCodeInFile(const OdString& code, std::vector<dxf::Handle>& objects) {
  objects.clear();
  return withReferences(code, kOdObjectReference, u"\\_ObjIdx", [&](std::uint64_t handle) {
    objects.push_back(handle);
    return std::optional<std::uint64_t>(objects.size() - 1);
  });
}
