#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mtext::writing {

/// Appends the text of a word with its symbols as "%%" sequences and its codes escaped. Blanks become `\~`
/// unless `plain_spaces`. A `%` is not protected: "%%d" typed as text will read as a degree sign.
void append_escaped(std::u16string& out, std::u16string_view text, bool plain_spaces);

/// Appends `text` with each blank as `\~` and all else as it is.
void append_with_tildes(std::u16string& out, std::u16string_view text);

/// The separator of a stack of this kind; empty for an unknown kind.
std::u16string_view stack_separator(std::uint32_t kind);

}  // namespace mtext::writing
