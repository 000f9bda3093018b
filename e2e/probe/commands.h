// What the probe can be asked. Every command takes its words and gives its answer as JSON; what
// cannot be done is thrown as a Refusal and answered as {"error": ...}.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace probe {

using Words = std::vector<std::wstring>;

struct Refusal : std::runtime_error {
  using runtime_error::runtime_error;
};

std::string Windows(const Words& none);         ///< visible top-level windows, the top one first
std::string Foreground(const Words& none);      ///< the window with the keys, or null
std::string Focus(const Words& none);           ///< the control with the keys, or null
std::string Children(const Words& window);      ///< all windows inside
std::string Text(const Words& window);          ///< as the window itself tells it
std::string WriteText(const Words& words);      ///< window, the text that a field is to hold
std::string Selection(const Words& window);     ///< [start, end] in an edit control
std::string Activate(const Words& window);      ///< makes it the foreground window
std::string ScrollLock(const Words& none);      ///< whether the lock is on
std::string RegistryGet(const Words& words);    ///< key, name: string, number or null
std::string RegistrySet(const Words& words);    ///< key, name, "dword" or "string", value
std::string RegistryDelete(const Words& key);   ///< with all below it
std::string ReadClipboard(const Words& none);   ///< {text, rich_text}, each null where it is not
std::string WriteClipboard(const Words& text);  ///< plain text

}  // namespace probe
