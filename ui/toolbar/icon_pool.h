#pragma once

#include <cstddef>
#include <stdexcept>
#include <utility>
#include <vector>

namespace toolbar {

/// The icons of one toolbar, which live and die with it.
template <class Icon>
class icon_pool {
 public:
  static constexpr std::size_t kMostIcons = 100;

  icon_pool() { m_icons.reserve(kMostIcons); }

  /// Takes an icon; it stays where it is. Throws `std::runtime_error` when the pool is full.
  const Icon& add(Icon icon) {
    if (m_icons.size() == kMostIcons) throw std::runtime_error("Icons pool full");
    return m_icons.emplace_back(std::move(icon));
  }
  std::size_t size() const { return m_icons.size(); }

 private:
  std::vector<Icon> m_icons;
};

}  // namespace toolbar
