#pragma once

#include <string>

#include "editor/editable.h"

/// Everything that undo brings back, line by line, so that a difference can be read: parts with their formats
/// and places, lines, columns, settings, marks of all kinds, box, style and attachment. Numbers stand with
/// all their digits.
std::string state_of(const ExMTextEditable& text);

/// The layout alone: where the parts, the lines and the columns stand.
std::string layout_of(const mtext::geom_multitext& text);

/// Fails the test when a mark reaches beyond the text, a solid of the text is empty, or the layout is not
/// that of a fresh `dispose`.
void expect_laid_out(const ExMTextEditable& text);

/// The same, and when the text does not come back from its own string. Holds where indents have few digits:
/// they are written with five.
void expect_sound(const ExMTextEditable& text);

/// Fails the test when the text that was read from the text's own string is written as another string. Holds
/// for texts in one height: factors of heights are written with five digits and add up.
void expect_same_codes_again(const ExMTextEditable& text);
