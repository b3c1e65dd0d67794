#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A node of the settings tree: named children and named texts.
class IParam {
 public:
  virtual ~IParam() = default;
  /// Names of the children, in the order in which they were made.
  virtual std::vector<std::u16string> childNames() const = 0;
  /// A child; null if there is none of that name. Owned by this node.
  virtual const IParam* child(std::u16string_view name) const = 0;
  /// A named text; nothing if it is not there.
  virtual std::optional<std::u16string> value(std::u16string_view name) const = 0;
};

/// A settings tree in memory.
class HostSettings : public IParam {
 public:
  std::vector<std::u16string> childNames() const override;
  const HostSettings* child(std::u16string_view name) const override;
  std::optional<std::u16string> value(std::u16string_view name) const override;

  /// The child of that name, made if it is not there.
  HostSettings& make(std::u16string_view name);
  void setValue(std::u16string_view name, std::u16string_view text);

 private:
  std::vector<std::pair<std::u16string, std::unique_ptr<HostSettings>>> m_children;
  std::map<std::u16string, std::u16string, std::less<>> m_values;
};
