#pragma once

class Desk;
class ICmdFactory;

/// Enters the desk's commands as a batch offers them. The batch itself keeps what was changed, so `Save` is
/// done without doing anything; `Open` and `SaveAs` would lead away from the drawing and are refused.
void registerBatchCommands(ICmdFactory& factory, Desk& desk);
