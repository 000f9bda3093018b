// Paths and files, as all panels and stores handle them. Paths are the system's own
// ("C:\folder\name.ext"); an extension is named without its dot.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {
class TopWindow;
}

namespace dorvalin {

/// The text before the first NUL of a buffer; none for a text without one, which is no buffer.
[[nodiscard]] std::optional<std::u16string> CutAtNul(std::u16string_view buffer);
/// Skips leading NULs, then takes the text before the next one or the end.
[[nodiscard]] std::u16string FirstNulField(std::u16string_view buffer);

/// Everything before the last dot; the name itself where there is none.
[[nodiscard]] std::u16string CutExtension(std::u16string_view name);
/// Lower-case text behind the last dot of the name; empty for a dot in a folder's name.
[[nodiscard]] std::u16string GetExtension(std::u16string_view path);

enum class FolderEnd { Bare, WithBackslash };
struct FolderAndName {
  std::u16string folder;  ///< empty where the path has no backslash
  std::u16string name;
};
/// Splits at the last backslash, not counting blanks at the ends and one trailing backslash.
[[nodiscard]] FolderAndName SplitPath(std::u16string_view path, FolderEnd end = FolderEnd::Bare);
/// Exactly one backslash between the two.
[[nodiscard]] std::u16string JoinPath(std::u16string_view folder, std::u16string_view name);

/// Creates every folder of the path that is missing. Whether it worked, FolderExists tells.
void MakeFolderPath(std::u16string_view path);
/// True for a folder as well.
[[nodiscard]] bool FileExists(std::u16string_view path);
[[nodiscard]] bool FolderExists(std::u16string_view path);

enum class NumberPlace { BehindName, BeforeExtension };
/// The path of this name, or the first free one with " (1)", " (2)" ... in it.
[[nodiscard]] std::u16string UniqueFileName(std::u16string_view folder, std::u16string_view name,
                                            NumberPlace place);

struct TemporaryName {
  std::u16string path;
  std::u16string name;  ///< the file's name without its extension
};
/// A free name made of the time of day. The file is not created.
[[nodiscard]] TemporaryName TempFileName(std::u16string_view folder, std::u16string_view extension);

/// Lets the shell copy what a path or pattern names. False: failed or cancelled.
bool ShellCopyFile(platform::TopWindow* owner, std::u16string_view source,
                   std::u16string_view target, bool noConfirmation, bool silent);
/// The same without an owner, with the shell's own questions and progress window.
bool ShellFileOperation(std::u16string_view source, std::u16string_view target);

}  // namespace dorvalin
