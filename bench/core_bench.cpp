#include <benchmark/benchmark.h>
#include <malloc.h>

#include <charconv>
#include <random>
#include <string>
#include <vector>

#include "platform/sim/world.h"
#include "program/program.h"

// From bytes at InputCharacter to the stored row and the log, with everything switched on, at 100
// spots a second of the program's time.
namespace {

constexpr auto kFolder = "/home/op/molva";
constexpr int kSpotsASecond = 100;

std::string Call(unsigned number, const char* prefix) {
  std::string call = prefix;
  call += static_cast<char>('0' + number % 10);
  for (unsigned rest = number / 10, i = 0; i < 3; ++i, rest /= 26)
    call += static_cast<char>('A' + rest % 26);
  return call;
}

std::string CountryFile() {
  std::string text;
  for (int i = 0; i < 340; ++i) {
    const std::string prefix = "Q" + std::to_string(100 + i);
    text += "Somewhere " + std::to_string(100 + i) +
            ":           14:  28:  EU:   51.00:   -10.00:    -1.0:  " + prefix + ":\n";
  }
  return text + "Marion Island:            38:  57:  AF:  -46.88:   -37.72:    -3.0:  ZS8:\n";
}

std::string LotwFile(unsigned calls) {
  std::string text = "LOTW\r\n";
  for (unsigned i = 0; i < calls; ++i) {
    std::string call = Call(i, i % 2 == 0 ? "K" : "DL");
    call.resize(14, ' ');
    text += call;
    if (i % 5 == 4) text += "\r\n";
  }
  return text;
}

std::string EqslFile(unsigned calls) {
  std::vector<std::string> lines;
  for (unsigned i = 0; i < calls; ++i) lines.push_back(Call(i, "G"));
  std::sort(lines.begin(), lines.end());
  std::string text = " " + std::to_string(calls) + " MOLVA SORTED LIST OF AG MEMBERS\r\n";
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::string FixFile() {
  std::string text;
  for (unsigned i = 0; i < 1000; ++i)
    text += "\"" + (i < 200 ? Call(i, "Z").substr(0, 4) + "*" : Call(i, "Y")) +
            "\",\"DL\",\"\",\"14\",\"28\",\"\",\"00\"\r\n";
  return text;
}

std::string RejectFile() {
  std::string text;
  for (unsigned i = 0; i < 80; ++i)
    text += "\"Dx\",\"" + (i < 20 ? Call(i, "U").substr(0, 4) + "*" : Call(i, "U")) + "\"\r\n";
  for (unsigned i = 0; i < 60; ++i) text += "\"Call\",\"" + Call(i, "T") + "\"\r\n";
  for (unsigned i = 0; i < 60; ++i)
    text += "\"Comment\",\"unwanted " + std::to_string(i) + "\"\r\n";
  return text;
}

std::string Configuration() {
  return "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor\"\r\n"
         "\"My Location\",\"42 17 N 83 44 W\"\r\n\"Gmt Offset\",\"Ok\"\r\n\"RejSpots\",-1\r\n"
         "\"ArCty\",-1\r\n\"ArBearing\",-1\r\n\"ArDistance\",-1\r\n\"ArWAZ\",-1\r\n\"ArITU\",-1\r\n"
         "\"dxsState\",-1\r\n\"DxGrid\",-1\r\n\"ArComments\",-1\r\n\"Spot Width\",\"79\"\r\n"
         "\"ShLoTW\",-1\r\n\"SheQSL\",-1\r\n\"LogDxSpots\",-1\r\n\"Bob=Dx\",-1\r\n";
}

// The program on a node that sends plain lines, past its login.
struct Running {
  Running() {
    world.files.folders.insert(kFolder);
    const auto put = [this](const char* name, std::string text) {
      world.files.content[std::string(kFolder) + "/" + name] = std::move(text);
    };
    put("molva.cfg", Configuration());
    put("cty.dat", CountryFile());
    put("lotw.txt", LotwFile(300'000));
    put("eqsl.txt", EqslFile(150'000));
    put("fixspots.dat", FixFile());
    put("reject.dat", RejectFile());
    program.Start();
    world.Run(std::chrono::milliseconds{100});
    program.session.state.Kind = session::NodeKind::Spider;
    program.session.state.LoggedIn = true;
    program.spotParts.lines.list.ShDxDone = true;
    program.views.Choose(program::Views::Dx);
  }

  platform::sim::World world;
  program::Program program{world.platform(), kFolder, {.quit = [] {}, .seed = 1}};
};

// A second of spots, each with the time that it is then, all different in call and frequency.
class Stream {
 public:
  // The lines of the next second.
  std::string Second(int minuteOfDay) {
    std::string text;
    char time[6];
    std::snprintf(time, sizeof time, "%02d%02d", minuteOfDay / 60 % 24, minuteOfDay % 60);
    for (int i = 0; i < kSpotsASecond; ++i) text += Line(time);
    return text;
  }

 private:
  std::string Line(const char* time) {
    static constexpr const char* kPrefixes[] = {"K", "DL", "G", "Y", "Z", "VE"};
    const unsigned number = Below(60'000);
    const bool skimmer = Below(10) < 8;
    std::string head = "DX de " + Call(Below(300), "W") + (skimmer ? "-#:" : ":");
    const std::string kHz = std::to_string(14000 + Below(340)) + "." + std::to_string(Below(10));
    head.resize(std::max<std::size_t>(24 - kHz.size(), head.size()), ' ');
    std::string line = head + kHz + "  " + Call(number, kPrefixes[number % 6]);
    line.resize(39, ' ');
    line += skimmer ? "CW    12 dB  24 WPM  CQ" : "up 2 %22tnx%22 unwant";
    line.resize(70, ' ');
    return line + time + "Z FN20\r\n";
  }

  unsigned Below(unsigned end) { return static_cast<unsigned>(random_() % end); }

  std::mt19937 random_{1};
};

std::vector<std::string> Seconds(int minutes, int firstMinute) {
  Stream stream;
  std::vector<std::string> seconds;
  for (int minute = 0; minute < minutes; ++minute)
    for (int second = 0; second < 60; ++second)
      seconds.push_back(stream.Second(firstMinute + minute));
  return seconds;
}

constexpr int kFirstMinute = 21 * 60;

void Play(Running& running, const std::string& second) {
  for (const char byte : second)
    running.program.session.intake.InputCharacter(static_cast<std::uint8_t>(byte));
  running.world.Run(std::chrono::seconds{1});
  running.world.files.content.erase(std::string(kFolder) + "/2026/dx-20-Nov-2026.txt");
}

void Core(benchmark::State& state) {
  Running running;
  const auto seconds = Seconds(60, kFirstMinute);
  std::size_t next = 0;
  for (; next < 900; ++next) Play(running, seconds[next]);  // a quarter of an hour fills all rings
  const auto before = mallinfo2().uordblks;
  for (auto _ : state) {
    if (next == seconds.size()) {
      state.SkipWithError("the hour is over");
      break;
    }
    Play(running, seconds[next++]);
  }
  state.SetItemsProcessed(state.iterations() * kSpotsASecond);
  state.counters["spots_shown"] =
      static_cast<double>(running.program.spotParts.pipeline.SpotsShown);
  state.counters["grown_bytes"] =
      static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
}
BENCHMARK(Core)->Iterations(2600);

// What the same lines cost a program that only splits them and parses their numbers.
void CoreFloor(benchmark::State& state) {
  const auto seconds = Seconds(50, kFirstMinute);
  std::size_t next = 0;
  double sum = 0;
  for (auto _ : state) {
    const std::string_view text = seconds[next++ % seconds.size()];
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find('\n', at);
      std::string_view line = text.substr(at, end - at);
      for (std::size_t word = 0; word != std::string_view::npos && word < line.size();) {
        const std::size_t blank = line.find(' ', word);
        double number = 0;
        std::from_chars(line.data() + word, line.data() + std::min(blank, line.size()), number);
        sum += number;
        word = line.find_first_not_of(' ', blank);
      }
      at = end + 1;
    }
  }
  benchmark::DoNotOptimize(sum);
  state.SetItemsProcessed(state.iterations() * kSpotsASecond);
}
BENCHMARK(CoreFloor);

}  // namespace
