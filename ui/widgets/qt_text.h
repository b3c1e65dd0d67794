#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "host/translate.h"

/// Between the texts of the house and those of the toolkit; both are UTF-16, so nothing is lost.
inline QString toQt(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}
inline std::u16string fromQt(const QString& text) { return text.toStdU16String(); }
/// A text of ours in the user's language.
inline QString qtTranslated(std::u16string_view text) { return toQt(Supp_Translate(text)); }
/// The string of a number, in the user's language.
inline QString qtString(int number) { return toQt(host::resource_string(number)); }
