#include "host/windowless/application.h"

#include "host/command_factory.h"

WindowlessApplication::WindowlessApplication(OdSmartPtr<OdDbDatabase> database, HostInputSource* source)
    : m_document(std::move(database), source ? *source : m_input, m_log), m_running(*this) {}

ICmdFactory& WindowlessApplication::commandFactory() { return host::command_factory(); }

void WindowlessApplication::updateNow() {
  ++m_updates;
  m_document.view().overlay().setPainted();
}
