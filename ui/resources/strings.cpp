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
    {1065, u"Do you want to save your changes?$IDH_SCRIBE_MTEXT_SAVE_CHANGES$"},
});

}  // namespace

std::span<const ResourceString> string_table() { return kStrings; }

void register_strings() { host::register_strings(kStrings); }

}  // namespace resources
