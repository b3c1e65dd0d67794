#include <cmath>

#include "editor/editable.h"
#include "mtext/entity/entity_format.h"

namespace {

namespace format = mtext::format;

void rebase_height(format::string& part, const format::string& before, const format::string& now) {
  const bool same_kind = part.height_kind == before.height_kind;
  if (same_kind && std::abs(part.height - before.height) < format::tolerance) {
    part.height = now.height;
    part.height_kind = now.height_kind;
  } else if (part.height_kind == 1 && before.height != 0) {
    part.height *= now.height / before.height;
  }
}

void rebase_font(format::string& part, const format::string& before, const format::string& now) {
  constexpr std::uint32_t kFace = format::flag_bold | format::flag_italic;
  const bool same_face = (part.flags & kFace) == (before.flags & kFace);
  const bool same_rest = (part.flags & ~kFace) == (before.flags & ~kFace);
  if (same_face) part.flags = (part.flags & ~kFace) | (now.flags & kFace);
  if (same_rest) part.flags = (part.flags & kFace) | (now.flags & ~kFace);
  if (part.font != before.font) return;
  part.font = now.font;
  part.is_shx = now.is_shx;
  part.pitch = now.pitch;
  part.charset = now.charset;
}

template <class T>
void rebase_value(T& part, const T& before, const T& now) {
  if (part == before) part = now;
}

/// Every field of `part` that was the default takes the new default; what was formatted otherwise stays.
void rebase(format::string& part, const format::string& before, const format::string& now) {
  rebase_height(part, before, now);
  rebase_font(part, before, now);
  rebase_value(part.color, before.color, now.color);
  rebase_value(part.tracking, before.tracking, now.tracking);
  rebase_value(part.width_factor, before.width_factor, now.width_factor);
  rebase_value(part.oblique, before.oblique, now.oblique);
}

}  // namespace

void ExMTextEditable::setStyle(OdDbObjectId style, bool keep_runs) {
  const format::string before = m_default_format;
  const format::string now = mtext::style_format(style, database());
  m_style = style;
  m_default_format = now;
  for (auto& part : m_text.parts) {
    if (keep_runs)
      part.part().format = now;
    else
      rebase(part.part().format, before, now);
  }
  remeasure(0, m_text.parts.size());
  m_layout_dirty = true;
  recomputeCurrentFormats();
}
