#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

/// What the application remembers for its user between runs: texts by section and name.
class IProfile {
 public:
  virtual ~IProfile() = default;
  virtual std::optional<std::u16string> text(std::u16string_view section, std::u16string_view name) const = 0;
  virtual void setText(std::u16string_view section, std::u16string_view name, std::u16string_view text) = 0;

  /// A whole number; `fallback` when it is not there or is none.
  int number(std::u16string_view section, std::u16string_view name, int fallback) const;
  void setNumber(std::u16string_view section, std::u16string_view name, int value);
};

/// A profile in memory.
class HostMemoryProfile : public IProfile {
 public:
  std::optional<std::u16string> text(std::u16string_view section, std::u16string_view name) const override;
  void setText(std::u16string_view section, std::u16string_view name, std::u16string_view text) override;

 protected:
  using Key = std::pair<std::u16string, std::u16string>;
  std::map<Key, std::u16string> m_texts;
};
