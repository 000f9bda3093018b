// Answers questions about this Windows with a line of JSON each. A question is words, each ended by
// a unit separator, and ends itself with a NUL.
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

constexpr char kEndOfWord = '\x1F';
constexpr char kEndOfQuestion = '\0';

const std::map<std::wstring, std::string (*)(const Words&)> kCommands = {
    {L"windows", Windows},
    {L"foreground", Foreground},
    {L"focus", Focus},
    {L"children", Children},
    {L"text", Text},
    {L"settext", WriteText},
    {L"selection", Selection},
    {L"activate", Activate},
    {L"scrolllock", ScrollLock},
    {L"regget", RegistryGet},
    {L"regset", RegistrySet},
    {L"regdelete", RegistryDelete},
    {L"clipboard", ReadClipboard},
    {L"setclipboard", WriteClipboard},
};

Words WordsOf(const std::string& question) {
  Words words;
  std::istringstream stream(question);
  for (std::string word; std::getline(stream, word, kEndOfWord);) words.push_back(Utf16(word));
  return words;
}

std::string Answer(Words words) {
  try {
    const auto command = kCommands.at(words.at(0));
    words.erase(words.begin());
    return command(words);
  } catch (const std::exception& refusal) {
    return JsonObject({{"error", JsonText(Utf16(refusal.what()))}});
  }
}

}  // namespace
}  // namespace probe

int wmain() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  for (std::string question; std::getline(std::cin, question, probe::kEndOfQuestion);) {
    std::cout << probe::Answer(probe::WordsOf(question)) << std::endl;
  }
  return 0;
}
