#pragma once

#include <string>
#include <vector>

#include "od/db/OdDbDatabase.h"

struct BatchOrder;

/// What came of an order in one drawing.
struct CarriedOut {
  bool is_done = true;
  std::vector<std::string> messages = {};  ///< what the command line said
  std::vector<std::string> reasons = {};   ///< why it is not done, besides what the command line said
};

/// Does the order in a drawing, which is changed in memory alone. Throws ScriptError, FileError, OdError and
/// std::invalid_argument.
CarriedOut carryOut(const BatchOrder& order, const OdDbDatabasePtr& drawing);
