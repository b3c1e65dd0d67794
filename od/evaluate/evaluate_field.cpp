#include "od/evaluate/evaluate_field.h"

#include <unordered_set>

#include "od/evaluate/expression.h"
#include "od/evaluate/field_code.h"
#include "od/evaluate/format_value.h"
#include "od/field/field_markers.h"

namespace {

constexpr std::u16string_view kFailed = u"####";
/// Where the children of a container have shown more than this, in characters, the others show nothing: one
/// child may stand in it many times.
constexpr std::size_t kLongestText = std::size_t{1} << 22;

/// What an evaluator found; nothing where the code has no meaning.
using Found = std::optional<OdFieldValue>;

Found evaluateVariable(const OdDbField&, std::u16string_view subject, const OdFieldSource& source) {
  return source.variable(subject);
}

/// `Object(%<\_ObjId 171>%).Length`
Found evaluateProperty(const OdDbField&, std::u16string_view subject, const OdFieldSource& source) {
  const auto object = odFindReference(subject, kOdObjectReference);
  const std::size_t point = subject.rfind(u").");
  if (!object || !subject.starts_with(u"Object(") || point == subject.npos || point < object->end) return {};
  return source.property(object->number, subject.substr(point + 2));
}

/// The number that a field shows, whatever its format.
std::optional<double> numberOf(const OdDbField& field) {
  if (const auto* whole = std::get_if<std::int32_t>(&field.value())) return *whole;
  if (const auto* real = std::get_if<double>(&field.value())) return *real;
  if (const auto* angle = std::get_if<OdFieldAngle>(&field.value())) return angle->radians;
  return odNumberOf(field.getFieldCode(OdDbField::kEvaluatedText).str());
}

Found evaluateExpression(const OdDbField& field, std::u16string_view subject, const OdFieldSource&) {
  const auto operand = [&field](std::u16string_view reference) -> std::optional<double> {
    const auto named = odFindReference(reference, kOdChildReference);
    const OdDbFieldPtr child = named ? field.childOrNull(named->number) : OdDbFieldPtr();
    return child ? numberOf(*child) : std::nullopt;
  };
  const auto value = odEvaluateExpression(subject, operand);
  return value ? Found(*value) : Found();
}

struct Evaluator {
  std::u16string_view id;
  Found (*evaluate)(const OdDbField& field, std::u16string_view subject, const OdFieldSource& source);
};

constexpr Evaluator kEvaluators[] = {
    {u"AcVar", evaluateVariable},
    {u"AcObjProp", evaluateProperty},
    {u"AcExpr", evaluateExpression},
};

const Evaluator* evaluatorOf(const OdDbField& field) {
  for (const Evaluator& each : kEvaluators)
    if (odEqualNoCase(each.id, field.evaluatorId().str())) return &each;
  return nullptr;
}

void evaluateAlone(OdDbField& field, const OdFieldSource& source) {
  if (field.isContainer())
    return field.setEvaluation({}, OdString(odContainerText(field)), OdDbField::kSuccess);
  const Evaluator* evaluator = evaluatorOf(field);
  const OdString code = field.getFieldCode(OdDbField::kFieldCode);
  const OdFieldCode read = odReadFieldCode(code.str());
  if (!evaluator) {
    // Another program may know more: what it found stays.
    if (field.evaluationStatus() == OdDbField::kNotYetEvaluated)
      field.setEvaluation({}, kFailed, OdDbField::kEvaluatorNotFound);
    return;
  }
  const Found found = evaluator->evaluate(field, read.subject, source);
  if (!found) return field.setEvaluation({}, kFailed, OdDbField::kInvalidCode);
  field.setEvaluation(*found, odFormatFieldValue(*found, read.format, source.units()), OdDbField::kSuccess);
}

}  // namespace

void odEvaluateField(const OdDbFieldPtr& field, int context, const OdFieldSource& source) {
  // First all fields, each in front of those within it; then backwards.
  std::vector<OdDbField*> fields{field.get()};
  std::unordered_set<const OdDbField*> seen(fields.begin(), fields.end());
  for (std::size_t at = 0; at < fields.size(); ++at)
    for (int i = 0; i < fields[at]->childCount(); ++i)
      if (OdDbField* child = fields[at]->getChild(i).get(); seen.insert(child).second)
        fields.push_back(child);
  for (auto each = fields.rbegin(); each != fields.rend(); ++each)
    if ((*each)->isContainer() || ((*each)->evaluationOption() & context)) evaluateAlone(**each, source);
}

std::u16string odContainerText(const OdDbField& container, std::u16string (*written)(std::u16string_view)) {
  const OdString code = container.getFieldCode(OdDbField::kFieldCode);
  std::u16string text;
  std::size_t shownUnits = 0;
  for (const auto& [letters, reference] : odSplitAtReferences(code.str(), kOdChildReference)) {
    text += letters;
    if (!reference || shownUnits > kLongestText) continue;
    const OdDbFieldPtr child = container.childOrNull(reference->number);
    if (!child) continue;
    const OdString shown = child->getFieldCode(OdDbField::kEvaluatedText);
    shownUnits += shown.str().size();
    text += written ? written(shown.str()) : shown.str();
  }
  return text;
}
