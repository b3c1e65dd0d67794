#pragma once

#include <map>

#include "od/evaluate/OdFieldSource.h"

/// A source of invented values; variables by name, properties by "handle.name".
class invented_source : public OdFieldSource {
 public:
  std::optional<OdFieldValue> variable(std::u16string_view name) const override {
    const auto found = variables.find(name);
    return found == variables.end() ? std::nullopt : std::optional(found->second);
  }
  std::optional<OdFieldValue> property(std::uint64_t handle, std::u16string_view name) const override {
    const auto found = properties.find({handle, std::u16string(name)});
    return found == properties.end() ? std::nullopt : std::optional(found->second);
  }
  OdFieldUnits units() const override { return drawing_units; }

  std::map<std::u16string, OdFieldValue, std::less<>> variables;
  std::map<std::pair<std::uint64_t, std::u16string>, OdFieldValue> properties;
  OdFieldUnits drawing_units;
};
