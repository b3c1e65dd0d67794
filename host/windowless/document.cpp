#include "host/windowless/document.h"

WindowlessDocument::WindowlessDocument(OdSmartPtr<OdDbDatabase> database, HostInputSource& source,
                                       HostCommandLine& line)
    : m_database(std::move(database)), m_picking(*m_database), m_prompt(*this, source, line) {}

void WindowlessDocument::entityChanged(const OdDbObjectId& id) { m_changed.add(id); }
