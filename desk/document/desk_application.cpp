#include "desk/document/desk_application.h"

#include "desk/document/desk_document.h"
#include "host/command_factory.h"

DeskApplication::DeskApplication(DeskServices services) : m_services(std::move(services)), m_running(*this) {}

HostDocument* DeskApplication::activeDocument() { return m_document; }

ICmdFactory& DeskApplication::commandFactory() { return host::command_factory(); }
