#pragma once

#include <vector>

#include "od/base/OdRxObject.h"
#include "od/base/export.h"

/// A field: a piece of text that a program evaluates, such as the date or the name of the file.
/// A container field holds the text of its host, with `%<\_FldIdx n>%` in place of its child `n`.
class SCRIBE_EXPORT OdDbField : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdDbField)

 public:
  /// What `getFieldCode` gives.
  enum CodeFlag {
    kFieldCode = 0,      ///< the code as it is kept
    kEvaluatedText = 2,  ///< the text of the last evaluation
    kAddMarkers = 16  ///< the code between "%<" and ">%"; for a container its text with the children's codes
                      ///< in their markers
  };

  OdDbField() = default;
  ~OdDbField() override;
  /// `evaluator` names the program that evaluates (`_text` for a container), `code` is what it is given.
  OdDbField(OdString evaluator, OdString code) : m_evaluator(std::move(evaluator)), m_code(std::move(code)) {}

  const OdString& evaluatorId() const { return m_evaluator; }  ///< the program that evaluates
  /// Whether the code is text that names children, not what an evaluator reads.
  bool isContainer() const { return m_evaluator == OdString(u"_text"); }
  /// Code or evaluated text, by one value of `CodeFlag`.
  virtual OdString getFieldCode(int flags) const;
  void setEvaluatedText(OdString text) { m_evaluated = std::move(text); }  ///< for `kEvaluatedText`

  int childCount() const { return static_cast<int>(m_children.size()); }  ///< fields inside this one
  /// The child at `index`; throws `OdError_InvalidIndex`. `forWrite` is the open mode and plays no part for a
  /// field in memory.
  OdSmartPtr<OdDbField> getChild(int index, bool forWrite = false) const;
  void addChild(OdSmartPtr<OdDbField> child) { m_children.push_back(std::move(child)); }  ///< at the end

 private:
  OdString m_evaluator;
  OdString m_code;
  OdString m_evaluated;
  std::vector<OdSmartPtr<OdDbField>> m_children;
};

using OdDbFieldPtr = OdSmartPtr<OdDbField>;  ///< a counted field
