#include "desk/document/desk.h"

#include <memory>
#include <utility>

#include "desk/document/drawing_file.h"
#include "host/application.h"
#include "host/command_loop.h"
#include "host/events.h"

void Desk::open(const std::filesystem::path& file) {
  const auto drawing = std::make_shared<OdDbDatabasePtr>();
  workOn(u"Opening " + textOf(file.filename()), Leaving::allowed,
         [drawing, file] { *drawing = openDrawing(file); });
  m_next = *drawing;
  if (m_loop) m_loop->stop();
}

void Desk::save(const std::filesystem::path& target) {
  OdDbDatabase& database = document().database();
  workOn(u"Saving " + textOf(target.filename()), Leaving::forbidden,
         [&database, target] { database.writeFile(target); });
}

std::filesystem::path Desk::file() { return document().database().path(); }

bool Desk::mayLoseDrawing() {
  if (!document().database().isModified()) return true;
  const std::filesystem::path name = file();
  const std::u16string shown = name.empty() ? u"the new drawing" : textOf(name.filename());
  const int answer =
      application().events().box(kBoxQuestion, u"Save the changes to " + shown + u"?", nullptr, 7);
  if (answer == kBoxNo) return true;
  if (answer != kBoxYes) return false;
  const std::optional<std::filesystem::path> target = name.empty() ? askFileToSave(name) : name;
  if (!target) return false;
  save(*target);
  return true;
}

void Desk::quit() {
  m_quit = true;
  if (m_loop) m_loop->stop();
}

void Desk::run() {
  do {
    if (OdDbDatabasePtr next = std::exchange(m_next, {}); next) show(std::move(next));
    runDocument();
  } while (m_next && !m_quit);
}

void Desk::runDocument() {
  HostCommandLoop loop(application(), document());
  m_loop = &loop;
  loop.runUntilEnd();
  m_loop = nullptr;
  m_failures += document().prompt().refusals() + document().prompt().unanswered();
}
