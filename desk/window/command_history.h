#pragma once

#include <QString>
#include <QStringList>

/// The lines that were typed at the command line, for the Up and Down keys.
/// Walking starts behind the newest line; what stood in the line then is kept there and comes back.
class CommandHistory {
 public:
  /// Adds a typed line and ends a walk. Empty lines and a repeat of the newest are not kept.
  void add(const QString& line);

  /// One line older than the present; the oldest stays. `typed` is what stands in the command line.
  QString older(const QString& typed);
  /// One line newer; behind the newest the line that was being typed when the walk began.
  QString newer(const QString& typed);

 private:
  QStringList m_lines;
  QString m_unfinished;
  qsizetype m_at = 0;  ///< index of the line shown; m_lines.size() when none is
};
