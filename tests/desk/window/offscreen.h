#pragma once

#include <QApplication>

/// The toolkit without a display; made at the first call, for the whole test program.
QApplication& offscreenApplication();
