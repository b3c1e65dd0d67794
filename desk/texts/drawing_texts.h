#pragma once

#include <string>
#include <vector>

#include "od/db/OdDbObjectId.h"

class OdDbDatabase;

/// What a text of a drawing is.
enum class TextKind { mtext, text, definition, attribute };

/// The kind as a drawing file names it: "MTEXT", "TEXT", "ATTDEF" or "ATTRIB".
const char* nameOf(TextKind kind);

/// One text of a drawing.
struct DrawingText {
  OdDbObjectId id;
  OdDbObjectId block_id;  ///< the block that holds it, also where it is part of an insert there
  TextKind kind = TextKind::text;
  std::u16string layer;
  std::u16string style;
  std::u16string block;     ///< name of that block
  std::u16string contents;  ///< as the drawing holds it
  std::u16string plain;     ///< without format codes; lines end with a line feed
};

/// The handle as people write it: hexadecimal.
std::string handleOf(const DrawingText& text);

/// All texts of all blocks, in file order.
std::vector<DrawingText> textsOf(const OdDbDatabase& database);
