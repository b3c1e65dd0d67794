#include "desk/document/desk_document.h"

namespace {
/// Sessions put their filters at this level, above trackers and the idle desk.
constexpr int kSessionLevel = 2;
}  // namespace

DeskDocument::DeskDocument(OdDbDatabasePtr database, DeskSurroundings around)
    : m_database(std::move(database)),
      m_around(std::move(around)),
      m_picking(*m_database),
      m_prompt(*this, m_around.source, m_around.line) {}

bool DeskDocument::hasSession() const { return m_messages.hasLevel(kSessionLevel); }
