#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "od/fonts/OdInstalledTypeface.h"
#include "od/fonts/OdTrueTypeFont.h"

/// The scalable faces that are installed, as fontconfig lists them. Only the list is asked for: which face is
/// taken for a name is decided here, so that a machine's rules for matching change nothing.
class TypefaceIndex {
 public:
  /// `extraFolders` are searched as well, as if they were font folders of the system.
  explicit TypefaceIndex(const std::vector<std::string>& extraFolders);
  ~TypefaceIndex();
  TypefaceIndex(const TypefaceIndex&) = delete;
  TypefaceIndex& operator=(const TypefaceIndex&) = delete;

  /// The best face of a family, or the face of that full name, without regard to case. What the family lacks
  /// in boldness or slant is asked for in the result.
  std::optional<OdTypefaceFile> findFamily(std::u16string_view name, bool bold, bool italic) const;
  /// The face in a file of this name, path not counted, without regard to case.
  std::optional<OdTypefaceFile> findFile(std::u16string_view fileName) const;
  /// A face that has a character, upright and of regular weight if there is one.
  std::optional<OdTypefaceFile> findCharacter(char32_t character) const;
  /// Every family once, by name.
  std::vector<OdInstalledTypeface> families() const;
  /// Any face at all.
  std::optional<OdTypefaceFile> findAny() const;

 private:
  struct Face;

  void readFaces();
  void addNames(const Face& face, std::size_t at);
  const Face* best(const std::vector<std::size_t>& among, bool bold, bool italic) const;

  struct Lists;
  std::unique_ptr<Lists> m_lists;  ///< what fontconfig gave, kept for its character sets
  std::vector<Face> m_faces;       ///< in the order of their paths
  std::unordered_map<std::u16string, std::vector<std::size_t>> m_byName;
};
