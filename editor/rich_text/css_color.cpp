#include "editor/rich_text/css_color.h"

#include <algorithm>
#include <charconv>

#include "od/base/whole_number.h"

namespace rich {

namespace {

struct named {
  std::string_view name;
  std::uint32_t color;
};

constexpr named kNames[] = {{"aqua", 0x00FFFF},    {"black", 0x000000},  {"blue", 0x0000FF},
                            {"fuchsia", 0xFF00FF}, {"gray", 0x808080},   {"green", 0x008000},
                            {"lime", 0x00FF00},    {"maroon", 0x800000}, {"navy", 0x000080},
                            {"olive", 0x808000},   {"orange", 0xFFA500}, {"purple", 0x800080},
                            {"red", 0xFF0000},     {"silver", 0xC0C0C0}, {"teal", 0x008080},
                            {"white", 0xFFFFFF},   {"yellow", 0xFFFF00}};

std::optional<std::uint32_t> hexadecimal(std::string_view digits) {
  const auto value = odWholeNumber<std::uint32_t>(digits, 16);
  if (!value || digits.size() == 6) return value;
  if (digits.size() != 3) return {};
  return (*value >> 8 & 0xF) * 0x110000 + (*value >> 4 & 0xF) * 0x1100 + (*value & 0xF) * 0x11;
}

/// `r, g, b` or `r g b`, with whatever stands behind them.
std::optional<std::uint32_t> decimal(std::string_view list) {
  std::uint32_t color = 0;
  for (int channel = 0; channel < 3; ++channel) {
    list.remove_prefix(std::min(list.size(), list.find_first_not_of(" ,")));
    int value = 0;
    const auto [stop, error] = std::from_chars(list.data(), list.data() + list.size(), value);
    if (error != std::errc()) return {};
    color = color << 8 | static_cast<std::uint32_t>(std::clamp(value, 0, 255));
    list.remove_prefix(static_cast<std::size_t>(stop - list.data()));
  }
  return color;
}

}  // namespace

std::optional<std::uint32_t> css_color(std::string_view value) {
  if (value.starts_with('#')) return hexadecimal(value.substr(1));
  for (const std::string_view opening : {"rgb(", "rgba("})
    if (value.starts_with(opening)) return decimal(value.substr(opening.size()));
  const auto found = std::find_if(std::begin(kNames), std::end(kNames),
                                  [value](const named& each) { return each.name == value; });
  return found == std::end(kNames) ? std::nullopt : std::optional(found->color);
}

}  // namespace rich
