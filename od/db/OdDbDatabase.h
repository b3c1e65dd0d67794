#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <unordered_map>
#include <variant>

#include "od/base/OdRxObject.h"
#include "od/db/OdDbObjectId.h"
#include "od/dxf/file.h"
#include "od/gi/OdGiFontContext.h"

class OdDbDatabase;
class OdDbDrawing;
class OdDbMTextLayout;
class OdFontLibrary;
using OdDbDatabasePtr = OdSmartPtr<OdDbDatabase>;

/// A drawing: the objects of one file, and what lies around them for as long as it is open.
/// An object that somebody has open keeps its database alive.
class OdDbDatabase : public OdRxObject, public OdGiFontContext {
  ODRX_DECLARE_MEMBERS(OdDbDatabase)

 public:
  /// Reads a drawing. Throws `dxf::Error` with one sentence when that cannot be done.
  static OdDbDatabasePtr readFile(const std::filesystem::path& path);
  /// Reads a drawing from its bytes; `name` stands in messages.
  static OdDbDatabasePtr readBytes(std::string bytes, std::string name);
  /// A new drawing with model and paper space and the usual tables.
  static OdDbDatabasePtr createEmpty(dxf::Version version = dxf::R2018);

  /// Saves so that the file is complete at every moment; the old one is kept with `.bak` behind its name.
  /// Throws `dxf::Error`. What was not changed has the bytes it was read with.
  void writeFile(const std::filesystem::path& path);
  /// What `writeFile` would write.
  std::string writeBytes() const;

  /// The file's name as it was read or last written; empty for a new drawing.
  OdString getFilename() const;
  /// The file that it was read from or written to last, in the bytes of the file system, which need not be
  /// text; empty for a new drawing.
  const std::filesystem::path& path() const { return m_path; }
  dxf::Version version() const;
  /// True when something differs from the file.
  bool isModified() const { return m_modified; }
  void setModified(bool modified) { m_modified = modified; }

  OdDbObjectId getModelSpaceId() const;
  OdDbObjectId getPaperSpaceId() const;
  /// The space that the user works in: model or paper.
  OdDbObjectId getActiveSpaceId() const;
  /// Chooses it for the session. Throws `OdError(eInvalidInput)` for what is no space.
  void setActiveSpaceId(OdDbObjectId space);
  /// The viewport of the paper space that is worked in; null in the model's own view.
  OdDbObjectId activeViewportId() const { return m_activeViewport; }
  void setActiveViewportId(OdDbObjectId viewport) { m_activeViewport = viewport; }

  OdDbObjectId getLayerTableId() const;
  OdDbObjectId getTextStyleTableId() const;
  OdDbObjectId getLinetypeTableId() const;
  OdDbObjectId getBlockTableId() const;
  /// The table of the model's tiled views.
  OdDbObjectId getViewportTableId() const;

  /// The style record that $TEXTSTYLE names, else "Standard", else the first one.
  OdDbObjectId getTEXTSTYLE() const;
  /// The style record of that name, else "Standard", else the first one. A drawing without styles has a
  /// "Standard" for the session, as one without layers has a "0".
  OdDbObjectId textStyleOrStandard(const OdString& name) const;
  /// The layer record that $CLAYER names, else "0".
  OdDbObjectId getCLAYER() const;

  /// The object that bears `handle`, or null.
  OdDbObjectId getOdDbObjectId(OdDbHandle handle) const;

  /// System variables by name, with or without `$`, without case. Those of the file's header come from there
  /// and are saved; others live as long as the database.
  using SysVar = std::variant<double, int, OdString>;
  /// The value, of a point its x, with the type that it has; nothing for a variable that is not there.
  std::optional<SysVar> getSysVar(const OdString& name) const;
  double getSysVarDouble(const OdString& name, double fallback) const;
  int getSysVarInt(const OdString& name, int fallback) const;
  OdString getSysVarString(const OdString& name, const OdString& fallback) const;
  /// Throw `OdError(eInvalidInput)` when the header holds a value of another type under the name.
  void setSysVarDouble(const OdString& name, double value);
  void setSysVarInt(const OdString& name, int value);
  void setSysVarString(const OdString& name, const OdString& value);

  /// Who lays out multi-line texts; null when nobody does.
  const std::shared_ptr<OdDbMTextLayout>& textLayout() const { return m_textLayout; }
  void setTextLayout(std::shared_ptr<OdDbMTextLayout> layout) { m_textLayout = std::move(layout); }
  void setFontLibrary(std::shared_ptr<OdFontLibrary> library) { m_fonts = std::move(library); }

  OdFontLibrary& fontLibrary() const override;

  /// For the objects of the database.
  OdDbDrawing& drawing() const { return *m_drawing; }

 protected:
  ~OdDbDatabase() override;

 private:
  template <typename T, typename... Arguments>
  friend OdSmartPtr<T> odNew(Arguments&&...);

  OdDbDatabase() = default;
  static OdDbDatabasePtr fromFile(dxf::File file, const OdString& name);
  std::unique_ptr<OdDbDrawing> m_drawing;
  std::unordered_map<OdString, SysVar> m_sessionVariables;
  OdString m_fileName;
  std::filesystem::path m_path;
  mutable std::shared_ptr<OdFontLibrary> m_ownFonts;
  std::shared_ptr<OdDbMTextLayout> m_textLayout;
  std::shared_ptr<OdFontLibrary> m_fonts;
  OdDbObjectId m_activeSpace;
  OdDbObjectId m_activeViewport;
  bool m_modified = false;
};
