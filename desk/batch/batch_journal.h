#pragma once

#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <string>

#include "od/dxf/descriptor.h"

/// What came of a drawing, as the journal has it.
enum class DrawingOutcome {
  changed,
  unchanged,
  failed,
};

/// The outcome as journal and report name it.
const char* nameOf(DrawingOutcome outcome);

/// A path as text that JSON can hold: bytes that are no UTF-8 become \xNN.
std::string pathInJson(const std::filesystem::path& path);

/// One line of the journal without what takes room in it.
struct JournalEntry {
  DrawingOutcome outcome = DrawingOutcome::failed;
  std::string source;     ///< digest of the drawing that was read
  std::string result;     ///< digest of the new drawing
  std::size_t texts = 0;  ///< how many changed
  std::streamoff place = 0;
};

/// What a batch has done, a line of JSON each, on the disk before the drawing is in its place: whatever ends
/// the program, a later run can tell what is done. Only one batch at a time works with a journal.
class BatchJournal {
 public:
  enum class Start {
    afresh,  ///< an earlier journal goes, unless its batch did not come to its end
    resume,  ///< what it holds is kept; there need not be one
  };

  /// `order` says what is done in the drawings. Throws UsageError when the journal is that of another order,
  /// when it must not go, or when another batch works with it, and FileError when it cannot be written.
  BatchJournal(std::filesystem::path file, const nlohmann::ordered_json& order, Start start);

  /// The newest entry for a drawing; null if there is none.
  const JournalEntry* find(const std::filesystem::path& target) const;
  /// The whole line of an entry.
  nlohmann::ordered_json read(const JournalEntry& entry) const;
  /// Adds a line for a drawing: `outcome`, `source`, `result` and whatever else is known. It is on the disk
  /// when this returns. Throws FileError.
  void add(const std::filesystem::path& target, nlohmann::ordered_json line);
  /// Notes that the batch came to its end.
  void finish();

 private:
  bool load(const nlohmann::ordered_json& order);
  void refuseToLose(Start start, bool same) const;
  void shorten(std::streamoff length);
  void begin(const nlohmann::ordered_json& order);
  void take(const nlohmann::ordered_json& line, std::streamoff place);
  std::streamoff append(const nlohmann::ordered_json& line);

  std::filesystem::path m_path;
  dxf::Descriptor m_file;
  std::map<std::string, JournalEntry> m_entries;
  bool m_finished = false;
};
