#include "desk/window/command_history.h"

void CommandHistory::add(const QString& line) {
  if (!line.isEmpty() && (m_lines.isEmpty() || m_lines.back() != line)) m_lines.push_back(line);
  m_at = m_lines.size();
  m_unfinished.clear();
}

QString CommandHistory::older(const QString& typed) {
  if (m_at == m_lines.size()) m_unfinished = typed;
  if (m_lines.isEmpty()) return typed;
  if (m_at > 0) --m_at;
  return m_lines[m_at];
}

QString CommandHistory::newer(const QString& typed) {
  if (m_at >= m_lines.size()) return typed;
  return ++m_at == m_lines.size() ? m_unfinished : m_lines[m_at];
}
