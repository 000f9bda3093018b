// A shell that opens nothing and remembers what it was asked to open.
#pragma once

#include <map>

#include "platform/memory/Faults.h"
#include "platform/memory/MemoryFiles.h"
#include "platform/shell.h"

namespace platform {

class MemoryShell : public Shell {
 public:
  struct Opened {
    std::u16string verb;
    std::u16string target;
    std::u16string arguments;
    friend bool operator==(const Opened&, const Opened&) = default;
  };

  MemoryShell(Faults& faults, MemoryFiles& files) : faults_(faults), files_(files) {}

  // What a test may set.
  std::map<int, std::u16string> specialFolders{
      {2, u"C:\\Benutzer\\Anna\\Startmenü\\Programme"},
      {5, u"C:\\Benutzer\\Anna\\Dokumente"},
      {7, u"C:\\Benutzer\\Anna\\Startmenü\\Programme\\Autostart"},
      {11, u"C:\\Benutzer\\Anna\\Startmenü"},
      {16, u"C:\\Benutzer\\Anna\\Desktop"},
      {20, u"C:\\Windows\\Fonts"},
      {26, u"C:\\Benutzer\\Anna\\Anwendungsdaten"},
  };
  /// By the extension in lower case; others are described by their extension.
  std::map<std::u16string, std::u16string> typeNames{{u"txt", u"Textdokument"}};
  std::map<std::u16string, VersionInformation> versions;  ///< by the path as it is asked for
  std::map<std::u16string, std::u16string> environment{{u"USERNAME", u"Anna"}};
  int programIcons = 8;
  std::map<std::u16string, int> iconsOfFiles;  ///< how many, by the path as it is asked for
  std::u16string logonName = u"Anna";
  std::u16string programFolder = u"C:\\Programme\\Dorvalin";
  bool previousInstance = false;

  // What a test may look at.
  std::vector<Opened> opened;
  std::vector<std::u16string> run;
  std::vector<CopyOptions> copies;

  bool Open(std::u16string_view verb, std::u16string_view target,
            std::u16string_view arguments) override;
  bool Run(std::u16string_view commandLine) override;
  bool CopyFiles(std::u16string_view source, std::u16string_view target,
                 const CopyOptions& options) override;
  std::optional<std::u16string> SpecialFolder(int number) override;
  /// A plain square whose colour follows the extension.
  Icon FileIcon(std::u16string_view path, IconSize size, bool byAttributes) override;
  /// A plain square of one colour for each place.
  Icon IconOf(std::u16string_view path, int index, IconSize size) override;
  std::u16string TypeName(std::u16string_view path) override;
  std::optional<VersionInformation> Version(std::u16string_view path) override;
  std::u16string ExpandEnvironment(std::u16string_view text) override;
  std::u16string LogonName() override {
    return faults_.Fails("Shell.LogonName") ? std::u16string() : logonName;
  }
  std::u16string ProgramFolder() override { return programFolder; }
  bool PreviousInstance() override { return previousInstance; }

 private:
  bool CopyEntry(std::u16string_view sourceFolder, const FolderEntry& entry,
                 std::u16string_view targetFolder);

  Faults& faults_;
  MemoryFiles& files_;
};

}  // namespace platform
