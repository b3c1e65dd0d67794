#include "desk/window/file_dialogs.h"

#include <QFileDialog>

namespace {

QString drawings() { return QObject::tr("Drawings (*.dxf *.DXF);;All files (*)"); }

std::optional<std::filesystem::path> pathOrNothing(const QString& chosen) {
  if (chosen.isEmpty()) return std::nullopt;
  return std::filesystem::path(chosen.toStdString());
}

}  // namespace

std::optional<std::filesystem::path> askDrawingToOpen(QWidget& parent, const std::filesystem::path& folder) {
  return pathOrNothing(QFileDialog::getOpenFileName(&parent, QObject::tr("Open"),
                                                    QString::fromStdString(folder.string()), drawings()));
}

std::optional<std::filesystem::path> askDrawingToSave(QWidget& parent,
                                                      const std::filesystem::path& proposed) {
  return pathOrNothing(QFileDialog::getSaveFileName(&parent, QObject::tr("Save As"),
                                                    QString::fromStdString(proposed.string()), drawings()));
}
