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

std::string Windows(const Words& none);          ///< visible top-level windows, the top one first
std::string Foreground(const Words& none);       ///< the window with the keys, or null
std::string Focus(const Words& none);            ///< the control with the keys, or null
std::string Children(const Words& window);       ///< all windows inside
std::string Text(const Words& window);           ///< as the window itself tells it
std::string WriteText(const Words& words);       ///< window, the text that a field is to hold
std::string Selection(const Words& window);      ///< [start, end] in an edit control
std::string Close(const Words& window);          ///< asks the window to close
std::string Activate(const Words& window);       ///< makes it the foreground window
std::string Buttons(const Words& none);          ///< names of the buttons that are down
std::string ScrollLock(const Words& none);       ///< whether the lock is on
std::string Environment(const Words& name);      ///< a variable of Windows' environment
std::string RegistryValues(const Words& key);    ///< {name: string or number}
std::string RegistryKeys(const Words& key);      ///< names of the keys below
std::string RegistrySet(const Words& words);     ///< key, name, "dword" or "string", value
std::string RegistryDelete(const Words& words);  ///< key, name; or key with all below
std::string ReadClipboard(const Words& none);    ///< {formats, text, rich_text}
std::string WriteClipboard(const Words& text);   ///< plain text

}  // namespace probe
