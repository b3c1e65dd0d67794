#pragma once

#include <QIcon>

/// The icon of a number: drawn from its file at whatever size is wanted, in the colour of the text on
/// buttons, so that it is sharp on every screen and seen on light and dark ones.
QIcon svgIcon(int number);
