#pragma once

#include <string>
#include <string_view>

/// The bytes of a file. Throws `OdError(eFileNotFound)` or `OdError(eFileAccessErr)` with a sentence that
/// names it; a font file of more than 256 MB is refused.
std::string odReadFontFile(const std::string& path);

/// The last part of a path, with "/" or "\" between the parts.
std::u16string_view odFileNameOf(std::u16string_view path);
std::string_view odFileNameOf(std::string_view path);

/// A file name without its extension.
std::u16string odStemOf(std::u16string_view path);

/// The extension in lower case, without the dot; empty for none.
std::u16string odExtensionOf(std::u16string_view path);
