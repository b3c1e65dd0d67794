#include "editor/editable.h"
#include "mtext/dispose.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/flatten.h"
#include "mtext/marks.h"
#include "mtext/numbering.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/db/OdDbDatabase.h"

void ExMTextEditable::setContents(OdString contents, mtext::fields_map fields) {
  m_contents = std::move(contents);
  m_fields = std::move(fields);
}

void ExMTextEditable::setLayoutInfo(const mtext::convert_info& info) {
  m_text.info = info;
  m_frame.attachment = static_cast<int>(info.vertical * 3 + (info.alignment >= 1 ? info.alignment - 1 : 0));
  m_layout_dirty = true;
}

void ExMTextEditable::load() {
  if (!m_finder) m_finder = std::make_shared<mtext::mtext_size_finder>(drawingWithFonts());
  mtext::multitext logical;
  mtext::parse(m_contents.str(), m_default_format, logical, m_fields);
  mtext::geom_multitext text = mtext::to_geom(logical, textHeight(), *m_finder);
  text.info = m_text.info;
  mtext::mark_numberings(text, m_letters);
  text.marks.push_back(new mtext::marks::selection(0));
  mtext::marks::slide_selections(text.marks);
  m_text = std::move(text);
  m_numbering_dirty = true;
  layOut();
  m_selections_before = selections();
}

OdDbDatabasePtr ExMTextEditable::drawingWithFonts() const {
  if (database()) return OdDbDatabasePtr(database());
  if (!m_own_drawing) m_own_drawing = OdDbDatabase::createEmpty();
  return m_own_drawing;
}

OdString ExMTextEditable::contentsText() const {
  return mtext::serialize(mtext::flatten(m_text), m_default_format, textHeight());
}

OdString ExMTextEditable::evaluatedContentsText() const {
  mtext::geom_multitext plain = m_text;
  plain.marks.erase_if([](const mtext::marks::mark& mark) {
    return dynamic_cast<const mtext::marks::field*>(&mark) != nullptr;
  });
  return mtext::serialize(mtext::flatten(plain), m_default_format, textHeight());
}
