// A group of 10,000 elements loaded, saved and shown, each beside the plain work on the same bytes:
// reading and decoding them, encoding and writing them, one search and replace a line.

#include <benchmark/benchmark.h>

#include "core/ProgramState.h"
#include "core/modRegTools.h"
#include "platform/text.h"
#include "quicktext/CPhraseGroup.h"
#include "quicktext/phrase_file.h"
#include "quicktext/placeholders.h"
#include "tests/support/DataDesktop.h"

namespace dorvalin {
namespace {

constexpr int kElements = 10'000;
constexpr char16_t kFile[] = u"C:\\Gruppe.dvp";

/// Three lines an element, every third with a placeholder in its first, every tenth formatted.
std::string GroupBytes() {
  std::string bytes;
  for (int i = 0; i < kElements; ++i) {
    if (i > 0) bytes += "#NEXT#\r\n";
    bytes += i % 3 == 0 ? "%TOWN%, den %SHORTDATE%\r\n" : "Sehr geehrte Damen und Herren,\r\n";
    bytes += "f\xFCr Ihre Anfrage Nr. " + std::to_string(i) + " danken wir Ihnen.\r\n";
    bytes +=
        "Mit freundlichen Gr\xFC\xDF"
        "en\r\n";
    if (i % 10 == 0)
      bytes += "#RTF#\r\n{\\rtf1\\ansi\\b Sehr geehrte Damen und Herren\\b0\\par}\r\n";
  }
  return bytes;
}

struct Ground {
  platform::DataDesktop desktop;
  platform::DesktopScope desktopScope{desktop};
  ProgramState state;
  ProgramStateScope stateScope{state};
  CPhraseGroup group;

  Ground() {
    desktop.files().Put(kFile, GroupBytes());
    group.File = kFile;
    group.Load();
  }
};

void LoadGroup(benchmark::State& run) {
  Ground ground;
  for (auto _ : run) {
    ground.group.Load();
    // The program frees a group at its end alone.
    run.PauseTiming();
    ground.group.Phrases.reset();
    run.ResumeTiming();
  }
}

void ReadBytes(benchmark::State& run) {
  Ground ground;
  for (auto _ : run) {
    auto text = ground.desktop.locale().FromAnsi(ground.desktop.files().Read(kFile).bytes);
    benchmark::DoNotOptimize(text);
  }
}

void SaveGroup(benchmark::State& run) {
  Ground ground;
  for (auto _ : run) {
    ground.group.Changed = true;
    ground.group.Save();
  }
}

void WriteBytes(benchmark::State& run) {
  Ground ground;
  const auto text = platform::FromWindows1252(GroupBytes());
  for (auto _ : run) {
    auto status = ground.desktop.files().Write(kFile, ground.desktop.locale().ToAnsi(text));
    benchmark::DoNotOptimize(status);
  }
}

std::vector<std::u16string> FirstLines(const CPhraseGroup& group) {
  std::vector<std::u16string> lines;
  for (const auto& phrase : *group.Phrases) {
    lines.push_back(phrase->Text.substr(0, phrase->Text.find(u"\r\n")));
  }
  return lines;
}

void ExpandFirstLines(benchmark::State& run) {
  Ground ground;
  RegSetString(ProgramKey(kUserDataKey), u"Town", u"Köln");
  const auto lines = FirstLines(ground.group);
  for (auto _ : run) {
    for (const auto& line : lines) benchmark::DoNotOptimize(ExpandPlaceholders(line, true));
  }
}

/// What filling in the same two values costs when it is known that there are no others.
void SearchAndReplace(benchmark::State& run) {
  Ground ground;
  const auto lines = FirstLines(ground.group);
  for (auto _ : run) {
    for (const auto& line : lines) {
      auto result = platform::ReplaceAll(line, u"%SHORTDATE%", u"09.03.2026");
      result = platform::ReplaceAll(result, u"%TOWN%", u"Köln");
      std::erase(result, u'|');
      benchmark::DoNotOptimize(result);
    }
  }
}

BENCHMARK(LoadGroup)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadBytes)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveGroup)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteBytes)->Unit(benchmark::kMillisecond);
BENCHMARK(ExpandFirstLines)->Unit(benchmark::kMillisecond);
BENCHMARK(SearchAndReplace)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace dorvalin
