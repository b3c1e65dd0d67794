#pragma once

#include <string_view>

#include "editor/rich_text/rich_text.h"

namespace rich {

/// What an element does to the text in it.
enum class html_role {
  none,       ///< nothing of its own
  block,      ///< stands in paragraphs of its own
  item,       ///< an item of a list
  ordered,    ///< a list that is counted
  unordered,  ///< a list with bullets
  line_break,
  cell,   ///< stands behind a tab
  hidden  ///< holds no text
};

/// The role of an element by its name, in lower case.
html_role role_of(std::string_view element);

/// Applies what the element itself means, such as `b`, to the style of the text around.
void apply_element(std::string_view element, style& target);

/// Applies the declarations of a `style` attribute.
void apply_declarations(std::string_view css, style& target);

/// Applies the attributes `color` and `size` of the element `font`.
void apply_font(std::string_view name, std::string_view value, style& target);

}  // namespace rich
