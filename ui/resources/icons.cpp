// A table: the pictures of the module. Most are those of the icon theme that the build finds; the others
// stand in ui/widgets/icons and are drawn in its manner.
#include "ui/resources/icons.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace resources {
namespace {

constexpr auto kIcons = std::to_array<ResourceIcon>({
    {237, "view-list-details"},
    {238, "view-list-text"},
    {239, "view-list-tree"},
    {114, "letter-underlined"},
    {116, "letter-bold"},
    {117, "format-justify-center"},
    {118, "format-justify-distributed"},
    {119, "letter-italic"},
    {120, "format-justify-fill"},
    {121, "format-justify-left"},
    {122, "letter-overlined"},
    {123, "format-justify-right"},
    {124, "font-shape"},
    {125, "gnumeric-font"},
    {128, "format-text-lowercase"},
    {129, "format-text-uppercase"},
    {130, "text-width"},
    {131, "text-oblique"},
    {132, "edit-undo"},
    {133, "edit-redo"},
    {137, "format-text-symbol"},
    {139, "text-stack"},
    {143, "format-line-spacing-normal"},
    {146, "format-list-ordered"},
    {149, "text-field"},
    {153, "object-columns"},
    {154, "text-attachment"},
    {229, "format-text-underline"},
    {230, "format-text-bold"},
    {231, "format-text-italic"},
    {232, "format-text-overline"},
    {234, "edit-find"},
    {235, "format-text-subscript"},
    {236, "format-text-superscript"},
    {240, "window-close"},
});

}  // namespace

std::span<const ResourceIcon> icon_table() { return kIcons; }

const char* icon_file(int number) {
  const auto found = std::ranges::find(kIcons, number, &ResourceIcon::number);
  if (found == kIcons.end()) throw std::invalid_argument("resources::icon_file: no such icon");
  return found->file;
}

}  // namespace resources
