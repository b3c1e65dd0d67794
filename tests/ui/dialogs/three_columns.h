#pragma once

#include "ui/dialogs/column_values.h"

/// Three columns of 30 with gutters of 5.
inline constexpr column_values kThreeColumns{.type = 1,
                                             .auto_height = 1,
                                             .count = 3,
                                             .height = 20,
                                             .column_width = 30,
                                             .gutter = 5,
                                             .total = 100,
                                             .text_height = 2.5};
