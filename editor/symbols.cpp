#include "editor/symbols.h"

#include <algorithm>
#include <array>

namespace editing {

namespace {

constexpr auto kSymbols = std::to_array<symbol_row>({
    {1007, u'\u00B0'}, {1008, u'\u00B1'}, {1009, u'\u00D8'}, {1010, u'\u2248'}, {1011, u'\u2220'},
    {1012, u'\uE100'}, {1013, u'\u2104'}, {1014, u'\u0394'}, {1015, u'\u0278'}, {1016, u'\uE101'},
    {1017, u'\u2261'}, {1018, u'\uE102'}, {1019, u'\u2260'}, {1020, u'\u2126'}, {1021, u'\u03A9'},
    {1022, u'\u214A'}, {1023, u'\u2082'}, {1024, u'\u00B2'}, {1015, u' '},
});

}  // namespace

std::span<const symbol_row> symbol_table() { return kSymbols; }

std::optional<char16_t> symbol_of(int command) {
  const auto row = std::find_if(kSymbols.begin(), kSymbols.end(),
                                [command](const symbol_row& each) { return each.command == command; });
  if (row == kSymbols.end()) return std::nullopt;
  return row->character;
}

}  // namespace editing
