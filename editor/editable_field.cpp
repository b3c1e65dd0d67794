#include <algorithm>
#include <deque>

#include "editor/editable.h"
#include "editor/line_ends.h"
#include "mtext/flatten.h"
#include "mtext/marks.h"
#include "mtext/part.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/evaluate_fields.h"
#include "od/field/field_markers.h"

using mtext::marks::field;

namespace {

bool is_field(const mtext::marks::mark& mark) { return dynamic_cast<const field*>(&mark) != nullptr; }

/// The marker of a field, as a text shows it.
std::u16string marker_of(const OdDbField& object) {
  return object.getFieldCode(OdDbField::kAddMarkers).str();
}

/// Gives each placeholder of a text its field: those that the entity holds come first, each once.
class children_by_marker {
 public:
  children_by_marker(const OdDbField* present, const mtext::fields_map& table) : m_table(table) {
    for (int i = 0; present && i < present->childCount(); ++i)
      m_held[marker_of(*present->getChild(i))].push_back(present->getChild(i));
  }

  OdDbFieldPtr take(const mtext::field& part) {
    const std::u16string marker = part.marker();
    auto& held = m_held[marker];
    if (held.empty()) {
      const OdDbFieldPtr made = OdDbField::createFromCode(part.code);
      const auto known = m_table.find(marker);
      if (known != m_table.end()) show_as(*made, *known->second);
      return made;
    }
    const OdDbFieldPtr child = held.front();
    held.pop_front();
    return child;
  }

 private:
  /// A field of a program that is not here goes on showing what that program found.
  static void show_as(OdDbField& made, const OdDbField& known) {
    made.setEvaluation(known.value(), known.getFieldCode(OdDbField::kEvaluatedText),
                       static_cast<OdDbField::EvaluationStatus>(known.evaluationStatus()));
    made.setEvaluationOption(known.evaluationOption());
  }

  const mtext::fields_map& m_table;
  std::map<std::u16string, std::deque<OdDbFieldPtr>> m_held;
};

/// Numbers the fields of a text: their codes become placeholders. Gives the fields in their order.
std::vector<OdDbFieldPtr> number_fields(mtext::multitext& text, children_by_marker& children) {
  std::vector<OdDbFieldPtr> fields;
  for (auto& each : text.parts) {
    if (each.type() != mtext::part_field) continue;
    auto& part = static_cast<mtext::field&>(each);
    fields.push_back(children.take(part));
    part.code = odWithoutMarkers(odFieldReference(kOdChildReference, fields.size() - 1));
  }
  return fields;
}

/// The container of a text that `write` turns into its code; null for a text without fields.
template <typename Write>
OdDbFieldPtr container_of(mtext::multitext text, children_by_marker children, OdDbDatabase& database,
                          const Write& write) {
  std::vector<OdDbFieldPtr> fields = number_fields(text, children);
  if (fields.empty()) return {};
  auto top = odNew<OdDbField>();
  top->setFieldCode(OdString(write(text)), OdDbField::kTextField | OdDbField::kPreserveFields,
                    std::move(fields));
  oddbEvaluateFields(database, OdDbField::kAutomatic, std::vector{top});
  return top;
}

}  // namespace

bool ExMTextEditable::hasFields() const {
  return std::any_of(m_text.marks.begin(), m_text.marks.end(), is_field);
}

const field* ExMTextEditable::fieldAt(const OdGePoint2d& at) const {
  const std::size_t position = m_text.position_at(at.x, at.y).at;
  for (const auto& mark : m_text.marks)
    if (is_field(mark) && mark.begin <= position && position < mark.end)
      return static_cast<const field*>(&mark);
  return nullptr;
}

OdDbFieldPtr ExMTextEditable::fieldObject(const field& mark) const {
  const auto known = m_fields.find(odWithMarkers(mark.code));
  return known != m_fields.end() ? known->second : OdDbField::createFromCode(mark.code);
}

mtext::geom_multitext ExMTextEditable::fieldParts(const OdDbFieldPtr& object,
                                                  const mtext::format::string& format) {
  const std::u16string marker = marker_of(*object);
  m_fields[marker] = object;
  mtext::field part(format, std::u16string(odWithoutMarkers(marker)));
  part.value = object->getFieldCode(OdDbField::kEvaluatedText).str();
  return mtext::to_geom(part, textHeight(), *m_finder);
}

void ExMTextEditable::insertField(const OdDbFieldPtr& object) {
  replaceSelections(
      [&](const mtext::format::string& format, std::size_t) { return fieldParts(object, format); });
}

void ExMTextEditable::replaceField(const OdGePoint2d& at, const OdDbFieldPtr& object) {
  const field* old = fieldAt(at);
  if (!old) return;
  const mtext::marks::mark range(old->begin, old->end);
  mtext::geom_multitext made = fieldParts(object, insertionFormat(mtext::marks::selection(range.begin)));
  const std::size_t behind = range.begin + made.parts.size();
  std::vector<mtext::marks::selection> kept = selections();
  const auto moved = [&](std::size_t& position) {
    if (position > range.begin) position = position < range.end ? behind : position - range.end + behind;
  };
  for (auto& selection : kept) {
    moved(selection.begin);
    moved(selection.end);
  }
  eraseRange(range);
  insertParts(range.begin, std::move(made));
  setSelections(kept);
  m_numbering_dirty = true;
}

void ExMTextEditable::convertFieldToText(const OdGePoint2d& at) {
  while (const field* held = fieldAt(at))
    m_text.marks.erase_if([held](const mtext::marks::mark& mark) { return &mark == held; });
  m_layout_dirty = true;
}

void ExMTextEditable::bindFields(mtext::multitext& text) {
  for (auto& each : text.parts) {
    if (each.type() != mtext::part_field) continue;
    auto& part = static_cast<mtext::field&>(each);
    const std::u16string marker = part.marker();
    if (!m_fields.contains(marker)) {
      const OdDbFieldPtr object = OdDbField::createFromCode(part.code);
      oddbEvaluateFields(*drawingWithFonts(), OdDbField::kAutomatic, {&object, 1});
      m_fields[marker] = object;
    }
    part.value = m_fields[marker]->getFieldCode(OdDbField::kEvaluatedText).str();
  }
}

OdDbFieldPtr ExMTextEditable::fieldText(const OdDbField* present) const {
  return container_of(mtext::flatten(m_text), children_by_marker(present, m_fields), *drawingWithFonts(),
                      [this](const mtext::multitext& text) {
                        return mtext::serialize(text, m_default_format, textHeight());
                      });
}

OdDbFieldPtr ExMTextEditable::lineField(std::size_t index, const OdDbField* present) const {
  const auto write = [](const mtext::multitext& text) {
    return editing::without_line_ends(mtext::serialize_raw(text, /*tilde_spaces=*/false));
  };
  return container_of(mtext::flatten(m_text.line(index)), children_by_marker(present, m_fields),
                      *drawingWithFonts(), write);
}
