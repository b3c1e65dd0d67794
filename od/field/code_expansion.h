#pragma once

#include <string>

class OdDbField;

namespace field_code {

/// The code of a field as people write it: in its markers, and the codes of its children, and theirs, in
/// theirs. A container has no marker of its own. Depth costs heap, and a child that is named again and again,
/// or that holds others which are, cannot fill the memory: at some length markers stay as they are.
std::u16string expanded(const OdDbField& field);

}  // namespace field_code
