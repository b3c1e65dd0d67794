#include "od/gi/OdGiSubEntityTraits.h"

#include "od/base/unicode.h"

OdGiSubEntityTraits OdGiSubEntityTraits::insideBlock(const OdGiSubEntityTraits& reference) {
  OdGiSubEntityTraits traits;
  traits.m_block =
      BlockValues{reference.m_color, reference.m_layer, reference.m_lineType, reference.m_lineWeight};
  traits.m_layer = reference.m_layer;
  return traits;
}

void OdGiSubEntityTraits::setTrueColor(const OdCmEntityColor& color) {
  m_color = m_block && color.isByBlock() ? m_block->color : color;
}

void OdGiSubEntityTraits::setLayer(const OdString& name) {
  m_layer = m_block && name == u"0" ? m_block->layer : name;
}

void OdGiSubEntityTraits::setLineType(const OdString& name) {
  m_lineType = m_block && odEqualNoCase(name.str(), u"ByBlock") ? m_block->lineType : name;
}

void OdGiSubEntityTraits::setLineWeight(int weight) {
  m_lineWeight = m_block && weight == kLineWeightByBlock ? m_block->lineWeight : weight;
}
