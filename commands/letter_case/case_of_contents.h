#pragma once

#include <string>
#include <string_view>

#include "commands/letter_case/letter_case.h"
#include "mtext/letters_dictionary.h"
#include "mtext/string_size_finder.h"

/// The format codes of a multi-line text with its letters in another case. Codes, fields and the labels of
/// lists stay. `height` is the text height in drawing units; sizes are asked of `finder` only because labels
/// are found in a text as it is laid out.
///
/// What comes out begins with a group around the text, "{\H1x;...}" for one without formats: characters have
/// their height in drawing units here, and the text as a whole has a relative one.
std::u16string case_of_contents(const std::u16string& contents, double height, case_mode mode,
                                const mtext::string_size_finder& finder,
                                const mtext::marks::letters_dictionary& letters);

/// The codes of a single-line text with its letters in another case. Control sequences such as "%%d" are
/// letters like all others; the marker of a field stays, and counts as a blank.
std::u16string case_of_line(std::u16string_view codes, case_mode mode);
