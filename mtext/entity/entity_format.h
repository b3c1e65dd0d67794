#pragma once

#include "mtext/convert_info.h"
#include "od/base/OdSmartPtr.h"

class OdDbMText;
class OdDbObjectId;
class OdDbDatabase;

namespace mtext {

/// What the text of an entity looks like where no code says otherwise. Throws `OdError_NotThatKindOfClass`
/// when its style is none.
format::string default_mtext_format(OdSmartPtr<OdDbMText> entity);

/// The same, and a plain shape font in a drawing that has no style for the entity.
format::string drawn_mtext_format(OdSmartPtr<OdDbMText> entity);

/// Font, width factor and slant of a text style, with the height that the style asks for, or else the
/// drawing. Throws `OdError_NotThatKindOfClass` when `style` is none.
format::string style_format(OdDbObjectId style, const OdDbDatabase* database);

/// The frame of an entity's text. The entity's line spacing is not read: it keeps its default.
convert_info mtext_convert_info(OdSmartPtr<OdDbMText> entity);

/// The same with the entity's line spacing, as the text is drawn and edited.
convert_info drawn_convert_info(OdSmartPtr<OdDbMText> entity);

}  // namespace mtext
