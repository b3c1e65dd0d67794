#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "desk/document/desk_document.h"
#include "od/db/OdDbDatabase.h"

class HostApplication;
class HostCommandLoop;

/// The drawing desk: one drawing that is worked on, and the doors by which drawings come and go. What the
/// desk's own commands do, they do through it; the window and the script each make one.
class Desk {
 public:
  virtual ~Desk() = default;

  virtual HostApplication& application() = 0;
  virtual DeskDocument& document() = 0;

  /// Asks for the name of a file to read; nothing if the user thinks better of it.
  virtual std::optional<std::filesystem::path> askFileToOpen() = 0;
  /// Asks for the name of a file to write, `proposed` being the present one.
  virtual std::optional<std::filesystem::path> askFileToSave(const std::filesystem::path& proposed) = 0;

  /// Reads a drawing and puts it in the place of the present one when the command that runs has ended. Throws
  /// OdError, with the present one left as it is.
  void open(const std::filesystem::path& file);
  /// Writes the drawing; it bears this name from now on. Throws OdError.
  void save(const std::filesystem::path& file);
  /// The name that the drawing was read from or written to; empty for a new one.
  std::filesystem::path file();
  /// Asks whether to save what would be lost. True: go on. False: the user wants to stay, or it could not be
  /// saved.
  bool mayLoseDrawing();
  /// Ends the desk when the command that runs has ended.
  void quit();

  /// Works on one drawing after the other until the user quits or the input ends.
  void run();
  /// How often a command was refused or a prompt stayed unanswered, over all drawings.
  int failures() const { return m_failures; }

 protected:
  /// Whether the user may leave a long work before its end.
  enum class Leaving { allowed, forbidden };
  /// Does something that takes its time; a window shows progress meanwhile. Passes exceptions on, and throws
  /// OdError when the user leaves: `work` then goes on by itself, so it has to own what it touches.
  virtual void workOn(std::u16string_view what, Leaving leaving, std::function<void()> work) = 0;
  /// Puts the drawing on the desk in the place of the one before.
  virtual void show(OdDbDatabasePtr drawing) = 0;

 private:
  void runDocument();

  OdDbDatabasePtr m_next;
  HostCommandLoop* m_loop = nullptr;
  bool m_quit = false;
  int m_failures = 0;
};
