#pragma once

#include <vector>

#include "od/gi/OdGiContext.h"

class OdDbDatabase;

/// What drawing the entities of a database needs to know of it. Valid as long as the database.
class OdGiContextForDbDatabase : public OdGiDefaultContext {
 public:
  explicit OdGiContextForDbDatabase(OdDbDatabase* database = nullptr) : m_database(database) {}

  void setDatabase(OdDbDatabase* database) { m_database = database; }
  OdDbDatabase* getDatabase() const { return m_database; }

  OdCmEntityColor layerColor(const OdString& layer) const override;
  bool layerIsVisible(const OdString& layer) const override;

  /// Notes something that could not be drawn as the drawing says, in one sentence; each sentence once.
  void report(const OdString& sentence) const;
  const std::vector<OdString>& diagnostics() const { return m_diagnostics; }

 private:
  OdDbDatabase* m_database;
  mutable std::vector<OdString> m_diagnostics;
};
