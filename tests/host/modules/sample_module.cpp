#include "host/application.h"
#include "host/document.h"
#include "host/exports.h"
#include "host/prompt.h"

// A module with one command, registered by a static initialiser.

namespace {

class SampleCommand : public CCmdProcess {
 public:
  int run() override {
    host::application()->activeDocument()->prompt().message(u"The module has run.");
    host::update_now();
    return setStatus(kCommandDone);
  }
};

[[maybe_unused]] const bool registered = host::register_command(
    u"SampleOfModule", [] { return OdSmartPtr<ICmdProcess>(new SampleCommand, kOdRxObjAttach); });

}  // namespace
