#include "host/settings.h"

#include <algorithm>

std::vector<std::u16string> HostSettings::childNames() const {
  std::vector<std::u16string> names;
  for (const auto& [name, child] : m_children) names.push_back(name);
  return names;
}

const HostSettings* HostSettings::child(std::u16string_view name) const {
  const auto found = std::find_if(m_children.begin(), m_children.end(),
                                  [name](const auto& entry) { return entry.first == name; });
  return found == m_children.end() ? nullptr : found->second.get();
}

std::optional<std::u16string> HostSettings::value(std::u16string_view name) const {
  const auto found = m_values.find(name);
  return found == m_values.end() ? std::nullopt : std::optional(found->second);
}

HostSettings& HostSettings::make(std::u16string_view name) {
  for (const auto& [child_name, child] : m_children) {
    if (child_name == name) return *child;
  }
  return *m_children.emplace_back(name, std::make_unique<HostSettings>()).second;
}

void HostSettings::setValue(std::u16string_view name, std::u16string_view text) {
  m_values.insert_or_assign(std::u16string(name), std::u16string(text));
}
