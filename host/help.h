#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Shows pages of the help by their key.
class IHelpService {
 public:
  virtual ~IHelpService() = default;
  /// Shows the page of a key; of an empty one the page that all others are reached from.
  virtual void show(std::u16string_view key) = 0;
};

/// The running application's help service; null if none runs.
IHelpService* Get_IHelpService();

/// Keeps the keys that were asked for.
class HostHelpLog : public IHelpService {
 public:
  void show(std::u16string_view key) override { m_keys.emplace_back(key); }
  const std::vector<std::u16string>& keys() const { return m_keys; }

 private:
  std::vector<std::u16string> m_keys;
};
