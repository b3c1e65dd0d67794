#pragma once

#include <optional>
#include <string_view>

/// An option of a format, `%lu2` or `%ps[, mm]`.
struct OdFormatOption {
  std::optional<int> number;     ///< behind the name
  std::u16string_view brackets;  ///< what stands in them; empty without any
};

/// The option of that name of two letters in `format`; nothing where it is not there.
std::optional<OdFormatOption> odFormatOption(std::u16string_view format, std::u16string_view name);

/// The number of an option; `fallback` where option or number is missing.
int odFormatNumber(std::u16string_view format, std::u16string_view name, int fallback);
