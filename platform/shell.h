// What the program asks of the system's shell: opening things, copying, special folders, file icons
// and descriptions, and its own place in the session.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/icon.h"

namespace platform {

class TopWindow;

enum class IconSize { Small, Large };  ///< 16 and 32 pixels

struct CopyOptions {
  TopWindow* owner = nullptr;
  bool noConfirmation = false;
  bool silent = false;  ///< no progress window
};

struct VersionInformation {
  std::u16string fileVersion;
  std::u16string productName;
  std::u16string companyName;
  std::u16string description;
  std::u16string copyright;
};

class Shell {
 public:
  virtual ~Shell() = default;
  /// Opens a document, address or program by a verb (empty: the default one). False: not started.
  [[nodiscard]] virtual bool Open(std::u16string_view verb, std::u16string_view target,
                                  std::u16string_view arguments) = 0;
  /// Starts a program by a whole command line. False: not started.
  [[nodiscard]] virtual bool Run(std::u16string_view commandLine) = 0;
  /// Copies all that a pattern names. True also where the pattern matched nothing.
  virtual bool CopyFiles(std::u16string_view source, std::u16string_view target,
                         const CopyOptions& options) = 0;
  /// A special folder by its number, created where it is missing; none where the system has none.
  [[nodiscard]] virtual std::optional<std::u16string> SpecialFolder(int number) = 0;
  /// `byAttributes`: the file need not exist, its name alone decides. Empty where there is none.
  [[nodiscard]] virtual Icon FileIcon(std::u16string_view path, IconSize size,
                                      bool byAttributes) = 0;
  /// The icon of this place, from 0, in a program, library or icon file; an empty path means this
  /// program. Where there is a picture of that very size it is taken, none is scaled. Empty where
  /// the file has no such icon.
  [[nodiscard]] virtual Icon IconOf(std::u16string_view path, int index, IconSize size) = 0;
  /// The shell's description of a file's type ("Textdokument"); empty where it has none.
  [[nodiscard]] virtual std::u16string TypeName(std::u16string_view path) = 0;
  [[nodiscard]] virtual std::optional<VersionInformation> Version(std::u16string_view path) = 0;
  [[nodiscard]] virtual std::u16string ExpandEnvironment(std::u16string_view text) = 0;
  [[nodiscard]] virtual std::u16string LogonName() = 0;
  /// The folder that holds the program, as the system tells it (a drive's root ends in a
  /// backslash).
  [[nodiscard]] virtual std::u16string ProgramFolder() = 0;
  /// True in a second process of the same user; the first one is marked by the first call.
  [[nodiscard]] virtual bool PreviousInstance() = 0;
};

}  // namespace platform
