#pragma once

#include <iosfwd>
#include <memory>

#include "desk/text_json/text_json.h"
#include "mtext/fields_map.h"
#include "mtext/multitext.h"

namespace text_json {

/// Throws `std::runtime_error` for a type that no part has.
std::unique_ptr<mtext::part> read_part(const json& value);
json write_part(const mtext::part& part);

mtext::multitext read_multitext(const json& value);
json write_multitext(const mtext::multitext& text);
/// Prints what `write_multitext` makes, part by part: a long text takes no more memory than a short one, and
/// a format that neighbours share is put into words once.
void print_multitext(std::ostream& out, const mtext::multitext& text);

/// A field object for each marker, which evaluates to the marker's text.
mtext::fields_map read_fields(const json& value);

}  // namespace text_json
