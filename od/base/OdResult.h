#pragma once

/// Outcome of an operation of the drawing library.
enum OdResult {
  eOk = 0,
  eInvalidInput,
  eInvalidIndex,
  eKeyNotFound,
  eNotThatKindOfClass,
  eNullObjectId,
  eNullObjectPointer,
  ePermanentlyErased,
  eWasErased,
  eNotOpenForRead,
  eNotOpenForWrite,
  eWasOpenForRead,
  eWasOpenForWrite,
  eNoDatabase,
  eNotInDatabase,
  eAlreadyInDb,
  eFileNotFound,
  eFileAccessErr,
  eInvalidFile,
  eDegenerateGeometry,
  eMakeMeProxy = 69,  ///< a subclass marker was not found: the reader cannot be of this class
  eNotApplicable,
  eInvalidContext,
  eGeneralFailure
};
