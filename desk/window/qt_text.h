#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Between the texts of the house and those of the toolkit; both are UTF-16, so nothing is lost.
inline QString toQt(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}
inline std::u16string fromQt(const QString& text) { return text.toStdU16String(); }
