#include "od/base/OdError.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<OdResult, const char*>, 24> kSentences{{
    {eOk, "No error"},
    {eInvalidInput, "Invalid input"},
    {eInvalidIndex, "Invalid index"},
    {eKeyNotFound, "Key not found"},
    {eNotThatKindOfClass, "Object is not of the required class"},
    {eNullObjectId, "Null object id"},
    {eNullObjectPointer, "Null object pointer"},
    {ePermanentlyErased, "Object is permanently erased"},
    {eWasErased, "Object was erased"},
    {eNotOpenForRead, "Object is not open for read"},
    {eNotOpenForWrite, "Object is not open for write"},
    {eWasOpenForRead, "Object is already open for read"},
    {eWasOpenForWrite, "Object is already open for write"},
    {eNoDatabase, "No database"},
    {eNotInDatabase, "Object is not in the database"},
    {eAlreadyInDb, "Object is already in the database"},
    {eFileNotFound, "File not found"},
    {eFileAccessErr, "File cannot be accessed"},
    {eInvalidFile, "Not a valid drawing file"},
    {eDegenerateGeometry, "Degenerate geometry"},
    {eMakeMeProxy, "Subclass marker not found"},
    {eNotApplicable, "Not applicable"},
    {eInvalidContext, "Invalid context"},
    {eGeneralFailure, "General failure"},
}};

const char* sentenceFor(OdResult code) {
  for (const auto& [result, sentence] : kSentences)
    if (result == code) return sentence;
  return "Unknown error";
}

}  // namespace

OdError::OdError(OdResult code) : OdError(code, sentenceFor(code)) {}

OdError_NotThatKindOfClass::OdError_NotThatKindOfClass(const std::string& have, const std::string& want)
    : OdError(eNotThatKindOfClass, "Object of class " + have + " is not a " + want) {}
