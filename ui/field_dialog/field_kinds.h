#pragma once

#include <span>
#include <string_view>

/// What a user can choose from in the field dialog.
namespace fields {

/// A way to write a value, as it stands behind `\f` in the code.
struct format_row {
  std::u16string_view label;
  std::u16string_view format;  ///< empty: as the drawing writes it
};

/// What a kind asks for beside its format.
enum class argument { none, name, object, expression };

/// A kind of field.
struct kind_row {
  std::u16string_view label;
  std::u16string_view code;  ///< up to the argument
  fields::argument argument;
  std::span<const format_row> formats;
};

/// All kinds, in the order of the list.
std::span<const kind_row> kinds();

/// Names of the properties of objects.
std::span<const std::u16string_view> properties();

}  // namespace fields
