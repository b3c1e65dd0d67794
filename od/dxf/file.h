#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "od/dxf/error.h"
#include "od/dxf/record_list.h"

namespace dxf {

/// A section of a drawing.
struct Section {
  std::string name;         ///< value of its group 2
  Record* begin = nullptr;  ///< the record SECTION
  Record* end = nullptr;    ///< the record ENDSEC, or null where the drawing ends without it
};

/// A drawing as an ordered list of records. It keeps the bytes it was read from, so that writing gives them
/// back wherever nothing was changed.
class File {
 public:
  /// Reads a drawing in either form. `name` stands in messages. Throws `Error` for what is no drawing, for
  /// one that ends in the middle, and for a binary group of unknown width.
  static File read(std::string bytes, std::string name);

  File(File&&) = default;
  File& operator=(File&&) = default;

  /// The drawing's bytes.
  std::string write() const;

  const std::string& name() const { return name_; }
  const Manner& manner() const { return *manner_; }
  Version version() const { return manner_->version; }
  Form form() const { return manner_->form; }
  const TextCodec& codec() const { return manner_->codec; }

  RecordList& records() { return records_; }
  const RecordList& records() const { return records_; }

  /// A new record in the manner of this file, in no list yet.
  std::unique_ptr<Record> make_record(std::string_view type) const;
  /// A new record in front of `place`, or at the end if `place` is null.
  Record& insert_before(Record* place, std::string_view type);

  /// All sections in file order. The same name may stand several times: the contents belong together.
  std::vector<Section> sections() const;
  /// The first section of that name.
  std::optional<Section> section(std::string_view name) const;

  /// The record SECTION of the header, which holds all variables; null if the drawing has none. Found once:
  /// variables are asked for with every text.
  Record* header() const { return header_; }
  /// The same, made at the top of the file if there is none.
  Record& make_header();

 private:
  File() = default;
  void read_records();

  std::string name_;
  std::unique_ptr<const std::string> bytes_;
  std::string_view prefix_;  ///< what stands in front of the first group: a byte order mark, the binary head
  std::string_view suffix_;  ///< what stands behind the last group
  std::shared_ptr<const Manner> manner_;
  RecordList records_;
  Record* header_ = nullptr;
};

}  // namespace dxf
