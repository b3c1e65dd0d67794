#pragma once

#include <filesystem>

#include "od/db/OdDbDatabase.h"

/// Reads a drawing with everything that it takes to show and edit its texts. Throws OdError with one sentence
/// that names the file.
OdDbDatabasePtr openDrawing(const std::filesystem::path& file);

/// A new drawing, ready to be shown and edited.
OdDbDatabasePtr newDrawing();

/// A path as a person writes it, between the UTF-16 of the house and the file system's bytes.
std::filesystem::path pathOf(std::u16string_view text);
std::u16string textOf(const std::filesystem::path& path);
