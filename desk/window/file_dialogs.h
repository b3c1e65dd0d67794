#pragma once

#include <filesystem>
#include <optional>

class QWidget;

/// Lets the user choose a drawing that is there; nothing if the dialog is cancelled.
std::optional<std::filesystem::path> askDrawingToOpen(QWidget& parent, const std::filesystem::path& folder);

/// Lets the user choose a name to save under, with a question before another file would be replaced.
std::optional<std::filesystem::path> askDrawingToSave(QWidget& parent, const std::filesystem::path& proposed);
