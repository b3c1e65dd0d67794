#pragma once

#include <QString>

#include "ui/toolbar/CMTextEdit.h"

class QWidget;

/// The boxes of the toolbar. Each shows what its control holds and tells it what the user does; the control
/// has to outlive it.
QWidget* sizeBox(CComboBoxConfirmed& sizes, QWidget* parent);
QWidget* fontBox(CMTextEdit::FontBox& fonts, QWidget* parent);
QWidget* styleBox(CMTextEdit::StyleBox& styles, QWidget* parent);
QWidget* colorBox(CColorComboBox& colors, QWidget* parent);
/// A number between its icon and its arrows.
QWidget* spinBox(CUpDownWithEdit& spin, int icon, const QString& name, QWidget* parent);
