#pragma once

#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "desk/batch/text_filter.h"
#include "desk/batch/text_replacement.h"

/// What is done in each drawing.
struct BatchOrder {
  std::string script = {};  ///< a script's file, or a command line: the command, and its answers
  std::optional<TextReplacement> replacement = {};  ///< what is done in the place of a script
  TextFilterOptions filter = {};  ///< answers the prompts for a selection, and tells where to replace
};

/// `scribe batch`: an order for many drawings.
struct BatchOptions {
  BatchOrder order;
  std::vector<std::filesystem::path> files;  ///< drawings, and folders of drawings
  std::filesystem::path out;     ///< folder for the new drawings; empty: they are not wanted there
  bool in_place = false;         ///< the new drawings take the place of the old
  int jobs = 0;                  ///< drawings at the same time; 0: as many as there are cores
  std::filesystem::path report;  ///< empty for none
  bool dry_run = false;          ///< nothing is written but the report
  bool resume = false;           ///< does what an earlier run with this report left undone
};

/// One drawing of a batch, done in a process of its own that the batch starts.
struct BatchWorkerOptions {
  BatchOrder order;
  std::filesystem::path drawing;
  std::filesystem::path target;  ///< the file that the new drawing is staged for; empty: it is dropped
  pid_t parent = 0;              ///< the process goes when this one goes
};
