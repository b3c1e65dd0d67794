#include "desk/batch/batch_journal.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <cstring>
#include <fstream>

#include "desk/program/file_error.h"
#include "desk/program/usage_error.h"
#include "od/base/unicode.h"

namespace {

using json = nlohmann::ordered_json;
namespace fs = std::filesystem;

constexpr const char* kOrder = "order";
constexpr const char* kTarget = "target";
constexpr const char* kFinished = "finished";

DrawingOutcome outcomeNamed(const std::string& name) {
  for (const DrawingOutcome outcome : {DrawingOutcome::changed, DrawingOutcome::unchanged})
    if (name == nameOf(outcome)) return outcome;
  return DrawingOutcome::failed;
}

/// A line with its end. Something that is no UTF-8 does not cost the entry.
std::string lineOf(const json& content) {
  return content.dump(-1, ' ', false, json::error_handler_t::replace) + '\n';
}

/// The lines of a file up to the first that is cut off or damaged, with the places where they begin; the
/// place behind the last.
template <typename Take>
std::streamoff readLines(const fs::path& file, const Take& take) {
  std::ifstream stream(file, std::ios::binary);
  std::streamoff place = 0;
  for (std::string line; std::getline(stream, line) && !stream.eof();) {
    const json content = json::parse(line, nullptr, /*allow_exceptions=*/false);
    if (!content.is_object()) break;
    take(content, place);
    place += static_cast<std::streamoff>(line.size()) + 1;
  }
  return place;
}

}  // namespace

const char* nameOf(DrawingOutcome outcome) {
  switch (outcome) {
    case DrawingOutcome::changed:
      return "changed";
    case DrawingOutcome::unchanged:
      return "unchanged";
    case DrawingOutcome::failed:
      return "failed";
  }
  return "";
}

std::string pathInJson(const fs::path& path) {
  constexpr const char* kDigits = "0123456789ABCDEF";
  const std::string& bytes = path.native();
  if (odToUtf8(odToUtf16(bytes)) == bytes) return bytes;
  std::string text;
  for (const char each : bytes) {
    const auto byte = static_cast<unsigned char>(each);
    text += byte < 0x80 ? std::string(1, each) : std::string("\\x") + kDigits[byte >> 4] + kDigits[byte & 15];
  }
  return text;
}

BatchJournal::BatchJournal(fs::path file, const json& order, Start start)
    : m_path(std::move(file)), m_file(::open(m_path.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, 0666)) {
  if (!m_file.is_open())
    throw FileError(m_path, std::string("the journal cannot be written (") + std::strerror(errno) + ").");
  if (::flock(m_file.number(), LOCK_EX | LOCK_NB) != 0)
    throw UsageError(m_path.string() + ": another batch works with this report.");
  const bool same = load(order);
  if (!m_finished) refuseToLose(start, same);
  if (start == Start::afresh || !same) begin(order);
}

bool BatchJournal::load(const json& order) {
  json found;
  const std::streamoff end = readLines(m_path, [&](const json& line, std::streamoff place) {
    if (place == 0) found = line.value(kOrder, json());
    take(line, place);
  });
  const bool is_empty = ::lseek(m_file.number(), 0, SEEK_END) == 0;
  if (!is_empty && found.is_null())
    throw UsageError(m_path.string() + " is in the way: it is not the journal of a batch.");
  // What a crash cut off is no part of the journal.
  shorten(end);
  return found == order;
}

/// What is half done must not be done a second time by mistake.
void BatchJournal::refuseToLose(Start start, bool same) const {
  if (m_entries.empty() || (start == Start::resume && same)) return;
  throw UsageError(m_path.string() + " is the journal of " + (same ? "a batch" : "another order") +
                   " that did not come to its end: " + (same ? "go on with --resume, or " : "") +
                   "remove it to begin anew.");
}

void BatchJournal::begin(const json& order) {
  m_entries.clear();
  shorten(0);
  append({{kOrder, order}});
}

void BatchJournal::shorten(std::streamoff length) {
  if (::ftruncate(m_file.number(), length) != 0) throw FileError(m_path, "it cannot be written.");
}

void BatchJournal::take(const json& line, std::streamoff place) {
  m_finished = line.value(kFinished, false);
  if (!line.contains(kTarget)) return;
  m_entries[line.value(kTarget, "")] = {.outcome = outcomeNamed(line.value("outcome", "")),
                                        .source = line.value("source", ""),
                                        .result = line.value("result", ""),
                                        .texts = line.value("texts", std::size_t{0}),
                                        .place = place};
}

const JournalEntry* BatchJournal::find(const fs::path& target) const {
  const auto found = m_entries.find(pathInJson(target));
  return found == m_entries.end() ? nullptr : &found->second;
}

json BatchJournal::read(const JournalEntry& entry) const {
  std::ifstream stream(m_path, std::ios::binary);
  stream.seekg(entry.place);
  std::string line;
  std::getline(stream, line);
  return json::parse(line);
}

void BatchJournal::add(const fs::path& target, json line) {
  line[kTarget] = pathInJson(target);
  take(line, append(line));
}

void BatchJournal::finish() { append({{kFinished, true}}); }

std::streamoff BatchJournal::append(const json& line) {
  const std::string bytes = lineOf(line);
  const std::streamoff place = ::lseek(m_file.number(), 0, SEEK_END);
  if (!m_file.write(bytes))
    throw FileError(m_path, std::string("it cannot be written (") + std::strerror(errno) + ").");
  if (::fsync(m_file.number()) != 0) throw FileError(m_path, "it cannot be written to the disk.");
  return place;
}
