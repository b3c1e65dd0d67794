#pragma once

#include "mtext/format_paragraph.h"
#include "mtext/format_string.h"
