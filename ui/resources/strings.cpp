#include "ui/resources/strings.h"

#include <array>

namespace resources {
namespace {

constexpr auto kStrings = std::to_array<ResourceString>({
    {237, u"The object is not in the working set."},
    {1030, u"Type the text. Finish input with <Ctrl>+<Enter> or cancel it with <Esc>..."},
    {1031, u"MText"},
    {1033, u"Specify first corner"},
    {1034, u"Specify opposite corner"},
    {1035, u"Select MText object"},
    {1036, u"No entities selected"},
    {1037, u"Selected entity is not an MText"},
    {1040, u"Bold"},
    {1041, u"Italic"},
    {1042, u"Underlined"},
    {1043, u"Overlined"},
    {1044, u"Align left"},
    {1045, u"Align center"},
    {1046, u"Align right"},
    {1047, u"Justified"},
    {1048, u"Distributed"},
    {1053, u"Map characters to upper"},
    {1054, u"Map characters to lower"},
    {1055, u"Custom..."},
    {1056, u"Color"},
    {1057, u"Undo"},
    {1058, u"Redo"},
    {1059, u"Style"},
    {1060, u"Font"},
    {1061, u"Font size"},
    {1062, u"Oblique"},
    {1063, u"Width"},
    {1064, u"Font color"},
    {1065, u"Do you want to save your changes?$IDH_SCRIBE_MTEXT_SAVE_CHANGES$"},
    {1067, u"Error accessing to RegulaDesk"},
    {1068, u"RegulaDesk is not installed on your system."},
    {1069, u"Selects text objects"},
    {1070, u"Selected objects are not texts"},
    {1071, u"Error occurred during merging texts"},
    {1072, u"Search in RegulaDesk"},
    {1085, u"Start Center Middle Right TL TC TR ML MC MR BL BC BR"},
    {1090, u"Select new justification"},
    {1094, u"Stack"},
    {1099, u"Line Spacing"},
    {1100, u"Numbering"},
    {1101, u"Insert field"},
    {1102, u"Insert symbol"},
    {1103, u"OK (Ctrl+Enter)"},
    {1109, u"Superscript"},
    {1110, u"Subscript"},
    {1111, u"Columns settings"},
    {1114, u"Change alignment"},
    {1200, u"By block"},
    {1201, u"Red"},
    {1202, u"Yellow"},
    {1203, u"Green"},
    {1204, u"Cyan"},
    {1205, u"Blue"},
    {1206, u"Magenta"},
    {1207, u"White"},
    {1208, u"By layer"},
    {1209, u"Unknown"},
});

}  // namespace

std::span<const ResourceString> string_table() { return kStrings; }

void register_strings() { host::register_strings(kStrings); }

}  // namespace resources
