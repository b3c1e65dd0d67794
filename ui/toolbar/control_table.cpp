#include "ui/toolbar/control_table.h"

#include <algorithm>
#include <stdexcept>

namespace toolbar {
namespace {

constexpr auto kButton = control_kind::button;
constexpr auto kCheck = control_kind::check_button;
constexpr auto kCombo = control_kind::combo;
constexpr auto kSpin = control_kind::spin_edit;

constexpr toolbar_control kControls[] = {
    {1015, kCombo, 1059},
    {1009, kCombo, 1060},
    {1008, kCombo, 1061},
    {1029, kCombo, 1064},
    {1001, kCheck, 1040, u"Ctrl+B", 116, 230},
    {1002, kCheck, 1041, u"Ctrl+I", 119, 231},
    {1003, kCheck, 1042, u"Ctrl+U", 114, 229},
    {1004, kCheck, 1043, u"Ctrl+O", 122, 232},
    {1014, kCheck, 1094, u"", 139},
    {1051, kCheck, 1109, u"", 236},
    {1052, kCheck, 1110, u"", 235},
    {1032, kButton, 1053, u"", 129},
    {1039, kButton, 1054, u"", 128},
    {1012, kButton, 1057, u"Ctrl+Z", 132},
    {1013, kButton, 1058, u"Ctrl+Y", 133},
    {1005, kCheck, 1044, u"", 121},
    {1006, kCheck, 1045, u"", 117},
    {1007, kCheck, 1046, u"", 123},
    {1010, kCheck, 1047, u"", 120},
    {1011, kCheck, 1048, u"", 118},
    {1048, kButton, 1099, u"", 143},
    {1049, kCheck, 1100, u"", 146},
    {1053, kButton, 1111, u"", 153},
    {1054, kButton, 1114, u"", 154},
    {1047, kButton, 1102, u"", 137},
    {1050, kButton, 1101, u"", 149},
    {1040, kSpin, 1062, u"", 131},
    {1042, kSpin, 1063, u"", 130},
    {2, kButton, 1072, u"", 234},
    {1, kButton, 1103},
};

}  // namespace

std::span<const toolbar_control> control_table() { return kControls; }

const toolbar_control& control_of(int id) {
  const auto found = std::find_if(std::begin(kControls), std::end(kControls),
                                  [id](const toolbar_control& each) { return each.id == id; });
  if (found == std::end(kControls)) throw std::invalid_argument("toolbar::control_of: no such control");
  return *found;
}

}  // namespace toolbar
