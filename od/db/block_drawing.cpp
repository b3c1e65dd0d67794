#include "od/db/block_drawing.h"

#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbAttributeDefinition.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDimension.h"
#include "od/db/OdGiContextForDbDatabase.h"
#include "od/gi/OdGiContext.h"

void OdDbBlockDrawing::draw(const OdDbBlockReference& reference) {
  OdSmartPtr<OdDbBlockReference> self(const_cast<OdDbBlockReference*>(&reference));
  enter(reference.blockTableRecord(), self, m_draw.geometry().traits());
  run();
}

void OdDbBlockDrawing::drawBlock(OdDbObjectId block) {
  enter(block, nullptr, m_draw.geometry().traits());
  run();
}

void OdDbBlockDrawing::report(const OdString& sentence) const {
  if (const auto* context = dynamic_cast<const OdGiContextForDbDatabase*>(&m_draw.context()))
    context->report(sentence);
}

/// Begins a pass over a block; the traits in force are those of the reference.
void OdDbBlockDrawing::enter(OdDbObjectId id, OdSmartPtr<OdDbBlockReference> reference,
                             const OdGiSubEntityTraits& traitsOutside) {
  const auto block = odOpen<OdDbBlockTableRecord>(id);
  if (!block) {
    if (reference) drawAttributes(*reference);
    m_draw.geometry().traits() = traitsOutside;
    return;
  }
  if (m_open.contains(id)) {
    report(u"Block " + block->getName() + u" refers to itself");
    m_draw.geometry().traits() = traitsOutside;
    return;
  }
  if (reference) drawAttributes(*reference);
  const OdGeMatrix3d toOutside = reference ? reference->blockTransform() : OdGeMatrix3d();
  m_draw.geometry().pushModelTransform(toOutside);
  m_open.insert(id);
  m_frames.push_back({.block = block,
                      .entities = block->entities(),
                      .reference = reference,
                      .traitsOfReference = m_draw.geometry().traits(),
                      .traitsOutside = traitsOutside});
}

void OdDbBlockDrawing::run() {
  while (!m_frames.empty() && m_steps++ < kMostSteps) step();
  if (m_frames.empty()) return;
  report(u"Block " + m_frames.front().block->getName() + u" holds too much to be drawn whole");
  abandon();
}

void OdDbBlockDrawing::step() {
  Frame& frame = m_frames.back();
  if (frame.next == frame.entities.size()) return leave();
  const OdDbEntityPtr entity = odOpen<OdDbEntity>(frame.entities[frame.next++]);
  m_draw.geometry().traits() = frame.traitsOfReference;
  if (entity) drawEntity(*entity);
}

/// Leaves all passes at once.
void OdDbBlockDrawing::abandon() {
  for (; !m_frames.empty(); m_frames.pop_back()) {
    m_draw.geometry().popModelTransform();
    m_draw.geometry().traits() = m_frames.back().traitsOutside;
  }
  m_open.clear();
}

/// Ends a pass: the next cell of an array follows, or what lies around the reference.
void OdDbBlockDrawing::leave() {
  Frame& frame = m_frames.back();
  m_draw.geometry().popModelTransform();
  const std::int64_t columns = frame.reference ? frame.reference->columns() : 1;
  const std::int64_t cells = frame.reference ? columns * frame.reference->rows() : 1;
  if (++frame.cell < cells) {
    frame.next = 0;
    const int column = static_cast<int>(frame.cell % columns), row = static_cast<int>(frame.cell / columns);
    m_draw.geometry().pushModelTransform(frame.reference->blockTransform(column, row));
    return;
  }
  m_draw.geometry().traits() = frame.traitsOutside;
  m_open.erase(frame.block->objectId());
  m_frames.pop_back();
}

void OdDbBlockDrawing::drawEntity(OdDbEntity& entity) {
  if (const auto definition = odCast<OdDbAttributeDefinition>(&entity)) {
    // Other definitions are drawn by the attributes that fill them.
    if (!definition->isConstant()) return;
  }
  const auto reference = odCast<OdDbBlockReference>(&entity);
  const auto dimension = odCast<OdDbDimension>(&entity);
  if (!reference && !dimension) {
    m_draw.drawInBlock(entity);
    return;
  }
  if (entity.visibility() != OdDb::kVisible) return;
  OdGiSubEntityTraits& traits = m_draw.geometry().traits();
  const OdGiSubEntityTraits outside = traits;
  traits = OdGiSubEntityTraits::insideBlock(outside);
  entity.setAttributes(traits);
  if (!m_draw.context().layerIsVisible(traits.layer()))
    traits = outside;
  else
    enter(reference ? reference->blockTableRecord() : dimension->dimBlockId(), reference, outside);
}

void OdDbBlockDrawing::drawAttributes(const OdDbBlockReference& reference) {
  for (const OdDbObjectId& id : reference.attributes()) {
    ++m_steps;
    const auto attribute = odOpen<OdDbAttribute>(id);
    if (attribute) m_draw.drawInBlock(*attribute);
  }
}
