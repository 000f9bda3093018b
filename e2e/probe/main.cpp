// Answers questions about this Windows: a line of words on the input, a line of JSON on the output.
// Words are separated by blanks and percent-encoded; an empty word is a lone "%".
#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <map>
#include <sstream>

#include "e2e/probe/commands.h"
#include "e2e/probe/json.h"

namespace probe {
namespace {

using Command = std::string (*)(const Words&);

const std::map<std::wstring, Command> kCommands = {
    {L"windows", Windows},
    {L"foreground", Foreground},
    {L"focus", Focus},
    {L"children", Children},
    {L"text", Text},
    {L"settext", WriteText},
    {L"selection", Selection},
    {L"close", Close},
    {L"activate", Activate},
    {L"buttons", Buttons},
    {L"scrolllock", ScrollLock},
    {L"environment", Environment},
    {L"regvalues", RegistryValues},
    {L"regkeys", RegistryKeys},
    {L"regset", RegistrySet},
    {L"regdelete", RegistryDelete},
    {L"clipboard", ReadClipboard},
    {L"setclipboard", WriteClipboard},
};

std::wstring Decoded(const std::string& word) {
  std::string bytes;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] != '%') {
      bytes += word[i];
    } else if (i + 2 < word.size()) {
      bytes += static_cast<char>(std::stoi(word.substr(i + 1, 2), nullptr, 16));
      i += 2;
    }
  }
  return Utf16(bytes);
}

Words WordsOf(const std::string& line) {
  Words words;
  std::istringstream stream(line);
  for (std::string word; stream >> word;) words.push_back(Decoded(word));
  return words;
}

std::string Answer(Words words) {
  try {
    if (words.empty()) throw Refusal("no command");
    const auto command = kCommands.find(words.front());
    if (command == kCommands.end()) throw Refusal("unknown command");
    words.erase(words.begin());
    return command->second(words);
  } catch (const std::exception& refusal) {
    return JsonObject({{"error", JsonText(Utf16(refusal.what()))}});
  }
}

}  // namespace
}  // namespace probe

int wmain() {
  _setmode(_fileno(stdout), _O_BINARY);
  for (std::string line; std::getline(std::cin, line);) {
    std::cout << probe::Answer(probe::WordsOf(line)) << std::endl;
  }
  return 0;
}
