#pragma once

#include <cstdint>
#include <vector>

#include "od/base/OdRxObject.h"
#include "od/base/export.h"
#include "od/field/OdFieldValue.h"

/// A field: a piece of text that a program evaluates, such as the date or the name of the file.
/// A container field holds the text of its host, with `%<\_FldIdx n>%` in place of its child `n`; so does the
/// code of any field that has others within.
class SCRIBE_EXPORT OdDbField : public OdRxObject {
  ODRX_DECLARE_MEMBERS(OdDbField)

 public:
  /// What `getFieldCode` gives, and how `setFieldCode` reads.
  enum CodeFlag {
    kFieldCode = 0,         ///< the code as it is kept
    kEvaluatedText = 2,     ///< the text of the last evaluation
    kAddMarkers = 16,       ///< the code between "%<" and ">%" with the codes of fields within it in their
                            ///< markers; for a container without a marker around the whole
    kPreserveFields = 128,  ///< the children that are given stay what they are
    kTextField = 256        ///< the code is the text of a host: the field becomes a container
  };
  /// Bits of `state`.
  enum State {
    kInitialized = 1,
    kCompiled = 2,
    kModified = 4,
    kEvaluated = 8,
    kHasCache = 16,
    kHasFormattedText = 32
  };
  /// When a field is evaluated: bits of `evaluationOption`, and of the context of an evaluation.
  enum EvaluationOption {
    kOnOpen = 1,
    kOnSave = 2,
    kOnPlot = 4,
    kOnTransmit = 8,
    kOnRegeneration = 16,
    kOnDemand = 32,
    kAutomatic = 63
  };
  /// How the last evaluation ended.
  enum EvaluationStatus {
    kNotYetEvaluated = 1,
    kSuccess = 2,
    kEvaluatorNotFound = 4,
    kSyntaxError = 8,
    kInvalidCode = 16
  };

  /// The name under which the field of a text hangs in the text's extension dictionary.
  static constexpr const char16_t* kTextKey = u"TEXT";
  /// What a field shows that nobody evaluated, or whose value is empty.
  static constexpr const char16_t* kNothingShown = u"----";

  OdDbField() = default;
  ~OdDbField() override;
  /// `evaluator` names the program that evaluates (`_text` for a container), `code` is what it is given.
  OdDbField(OdString evaluator, OdString code) : m_evaluator(std::move(evaluator)), m_code(std::move(code)) {}
  /// A field of its code as people write it, without the markers around it: `\AcVar Date \f "yyyy"`. The
  /// fields whose markers stand in it become children.
  static OdSmartPtr<OdDbField> createFromCode(std::u16string_view code);

  const OdString& evaluatorId() const { return m_evaluator; }  ///< the program that evaluates
  /// Whether the code is text that names children, not what an evaluator reads.
  bool isContainer() const { return m_evaluator == OdString(u"_text"); }
  /// Code or evaluated text, by one value of `CodeFlag`. A field that nobody evaluated shows "----".
  virtual OdString getFieldCode(int flags) const;
  /// Takes another code, with `children` for the indices in it, and is no longer the one that was read from a
  /// drawing. Of `CodeFlag` it reads `kTextField`.
  void setFieldCode(OdString code, int flags, std::vector<OdSmartPtr<OdDbField>> children = {});

  /// What the last evaluation gave, and how it ended.
  void setEvaluation(OdFieldValue value, OdString text, EvaluationStatus status);
  const OdFieldValue& value() const { return m_value; }  ///< found by the last evaluation in this session
  int evaluationStatus() const { return m_status; }      ///< of `EvaluationStatus`
  int state() const { return m_state; }                  ///< bits of `State`
  int evaluationOption() const { return m_option; }      ///< bits of `EvaluationOption`
  void setEvaluationOption(int bits) { m_option = bits; }
  void setEvaluatedText(OdString text) { m_evaluated = std::move(text); }  ///< for `kEvaluatedText`

  int childCount() const { return static_cast<int>(m_children.size()); }  ///< fields inside this one
  /// The child at `index`; throws `OdError_InvalidIndex`. `forWrite` is the open mode and plays no part for a
  /// field in memory.
  OdSmartPtr<OdDbField> getChild(int index, bool forWrite = false) const;
  /// The child at `index`, as a reference in the code names it; null where there is none.
  OdSmartPtr<OdDbField> childOrNull(std::uint64_t index) const;
  void addChild(OdSmartPtr<OdDbField> child) { m_children.push_back(std::move(child)); }  ///< at the end

  /// The number of the drawing's object that the field was read from; 0 for one that is in no drawing.
  std::uint64_t fileHandle() const { return m_fileHandle; }
  void setFileHandle(std::uint64_t handle) { m_fileHandle = handle; }  ///< for the database

 private:
  OdString m_evaluator;
  OdString m_code;
  OdString m_evaluated = kNothingShown;
  OdFieldValue m_value;
  std::vector<OdSmartPtr<OdDbField>> m_children;
  std::uint64_t m_fileHandle = 0;
  int m_state = kInitialized;
  int m_option = kAutomatic;
  int m_status = kNotYetEvaluated;
};

using OdDbFieldPtr = OdSmartPtr<OdDbField>;  ///< a counted field
