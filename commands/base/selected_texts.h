#pragma once

#include <optional>
#include <vector>

#include "host/selection_set.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

class HostDocument;
class HostEdPrompt;

/// Texts that a command changes, open for write, in the order in which they were selected.
struct selected_texts {
  std::vector<OdDbTextPtr> single_line;
  std::vector<OdDbMTextPtr> multi_line;

  bool empty() const { return single_line.empty() && multi_line.empty(); }
};

/// Asks for entities. Nothing when the selection was cancelled or left empty. Entities on locked layers are
/// taken out of it, and the user is told how many.
std::optional<HostSelectionSet> ask_for_texts(HostDocument& document);

/// What of a selection may be changed: nothing on a locked layer. The user is told how many entities are left
/// out.
HostSelectionSet without_locked(const HostSelectionSet& picked, HostEdPrompt& prompt);

/// Opens the texts of a selection; entities of other kinds are left out. Throws what opening throws.
selected_texts open_texts(const HostSelectionSet& selection);

/// Asks for texts and opens them. Nothing when the selection was cancelled or left empty; no texts where the
/// user was told that none was among it.
std::optional<selected_texts> ask_and_open_texts(HostDocument& document);

/// Tells the user that nothing of what was selected is a text of the kind that the command changes.
void refuse_without_texts(HostDocument& document);
