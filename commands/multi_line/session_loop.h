#pragma once

class HostEdPrompt;
class smart_edit;

/// How the wait for a session ended: the answers of the question whether to save are among these.
enum session_result : int {
  kSessionAccepted = 1,
  kSessionDiscarded = 2,
};

/// Waits at the prompt while `session` is edited, with its toolbar where there are windows. A cancel with
/// changes asks whether to save them, and may go back to the text. The end of the input discards. Returns
/// `kSessionAccepted`, or another number for all else.
int wait_for_session(HostEdPrompt& prompt, smart_edit& session);
