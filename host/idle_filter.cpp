#include "host/idle_filter.h"

#include "host/command_input.h"
#include "host/document.h"
#include "host/entity_hit.h"
#include "host/picking.h"
#include "host/selection_set.h"
#include "host/view.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

bool HostIdleFilter::filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) {
  if (message.number == WM_LBUTTONDOWN) {
    select(point, message.shift);
    return true;
  }
  if (message.number == WM_LBUTTONDBLCLK) {
    edit(point);
    return true;
  }
  return false;
}

OdDbObjectId HostIdleFilter::entityAt(const OdGePoint3d& point) const {
  return m_document.picking().pick(point, aperture());
}

double HostIdleFilter::aperture() const { return kAperture * m_document.view().unitsPerPixel(); }

void HostIdleFilter::select(const OdGePoint3d& point, bool shift) {
  HostSelectionSet& selected = m_document.pickFirst();
  const OdDbObjectId id = entityAt(point);
  if (id.isNull()) {
    selected.clear();
  } else if (shift) {
    selected.remove(id);
  } else {
    selected.add(id, point);
  }
}

void HostIdleFilter::edit(const OdGePoint3d& point) {
  const OdDbObjectId id = host::attribute_or_entity(entityAt(point), point, aperture());
  const auto text = odCast<OdDbEntity>(id ? id.openObject() : OdDbObjectPtr());
  const bool is_multi_line = text && odCast<OdDbMText>(text);
  if (!is_multi_line && !(text && odCast<OdDbText>(text))) return;
  m_document.pickFirst() = HostSelectionSet(id, point);
  m_document.commandInput().dropUnfinished();
  m_document.commandInput().type(is_multi_line ? u"MTextEdit^M" : u"TextEdit^M");
}
