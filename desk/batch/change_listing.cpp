#include "desk/batch/change_listing.h"

#include "desk/texts/one_line.h"

namespace {

using json = nlohmann::ordered_json;

void listText(std::ostream& out, char mark, const json& text) {
  if (!text.is_null()) out << "    " << mark << ' ' << onOneLine(text["plain"].get<std::string>()) << '\n';
}

bool readsTheSame(const json& before, const json& after) {
  return !before.is_null() && !after.is_null() && before["plain"] == after["plain"];
}

void listChange(std::ostream& out, const json& change) {
  out << "  " << change["handle"].get<std::string>() << ' ' << change["kind"].get<std::string>() << ' '
      << change["layer"].get<std::string>() << '\n';
  if (readsTheSame(change["before"], change["after"])) {
    listText(out, '=', change["after"]);
    return;
  }
  listText(out, '-', change["before"]);
  listText(out, '+', change["after"]);
}

}  // namespace

void listChanges(std::ostream& out, const DrawingJob& job, const DrawingResult& result) {
  if (result.changes.empty()) return;
  out << job.file.string() << '\n';
  for (const json& change : result.changes) listChange(out, change);
}
