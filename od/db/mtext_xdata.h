#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "od/db/OdDbHandle.h"
#include "od/dxf/record.h"

/// What multi-line texts of older drawings say in their extended data: named blocks of values, each value
/// behind a group 1070 with its code, all in the data of the application ACAD.
///
///     ACAD_MTEXT_COLUMN_INFO_BEGIN, 75, type, 79, automatic, ..., ACAD_MTEXT_COLUMN_INFO_END
struct OdDbMTextXdata {
  /// The names between which a block stands.
  struct Name {
    std::u16string_view begin;
    std::u16string_view end;
  };

  static constexpr Name kColumnInfo{u"ACAD_MTEXT_COLUMN_INFO_BEGIN", u"ACAD_MTEXT_COLUMN_INFO_END"};
  static constexpr Name kColumns{u"ACAD_MTEXT_COLUMNS_BEGIN", u"ACAD_MTEXT_COLUMNS_END"};
  static constexpr Name kDefinedHeight{u"ACAD_MTEXT_DEFINED_HEIGHT_BEGIN", u"ACAD_MTEXT_DEFINED_HEIGHT_END"};
  static constexpr Name kBackground{u"ACAD_MTEXT_BBRT", u"ACAD_MTEXT_BERT"};

  /// A value behind its code; `code` 0 stands for a value without one.
  struct Value {
    int code;
    /// 1070, 1040, 1071, 1000, 1005
    std::variant<int, double, std::int64_t, std::u16string, OdDbHandle> value;
  };

  /// The groups between the names; nothing where the record has no such block.
  static std::optional<dxf::Range> find(const dxf::Record& record, Name name);
  /// Index of the value behind `code` in a block.
  static std::optional<std::size_t> valueOf(const dxf::Record& record, dxf::Range block, int code);
  static double real(const dxf::Record& record, Name name, int code, double fallback);
  static std::int64_t integer(const dxf::Record& record, Name name, int code, std::int64_t fallback);
  /// Writes the block anew where it stands. A new one stands at the end of the application's data; that of a
  /// defined height stays behind it.
  static void write(dxf::Record& record, Name name, const std::vector<Value>& values);
  /// Takes the block out with its names.
  static void remove(dxf::Record& record, Name name);
};
