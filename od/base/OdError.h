#pragma once

#include <stdexcept>
#include <string>

#include "od/base/OdResult.h"
#include "od/base/export.h"

/// A failure of the drawing library. `what` is one sentence in UTF-8 for the user.
class SCRIBE_EXPORT OdError : public std::runtime_error {
 public:
  explicit OdError(OdResult code);
  /// A sentence of the caller's own, with the general code.
  explicit OdError(const std::string& sentence) : OdError(eGeneralFailure, sentence) {}
  OdError(OdResult code, const std::string& sentence) : std::runtime_error(sentence), m_code(code) {}

  OdResult code() const { return m_code; }  ///< what went wrong, for a program to ask

 private:
  OdResult m_code;
};

/// An object is not of the class that the code needs.
class SCRIBE_EXPORT OdError_NotThatKindOfClass : public OdError {
 public:
  /// `have` and `want` are class names.
  OdError_NotThatKindOfClass(const std::string& have, const std::string& want);
};

/// An index lies outside its array.
class SCRIBE_EXPORT OdError_InvalidIndex : public OdError {
 public:
  OdError_InvalidIndex() : OdError(eInvalidIndex) {}
};
