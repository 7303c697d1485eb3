// Measures commands that are not compared with a bare loop, each beside what people would use
// instead. The packages jq and sqlite3 are needed.
//
// daily_commands [ROUNDS]   prints medians

#include <cstdio>
#include <fstream>
#include <string>

#include "golfer_install.h"
#include "scored_install.h"
#include "whole_process.h"

namespace golf::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kGolfers = 30000;
constexpr int kInstalls = 1000;

const std::string kProgram = GOLF_CLI " --quiet --install ";
const std::string kTransfer = " golfers-kv-to-qb --roster CLUB --to 1";
const std::string kCopyData = "mkdir {}/copy && cp --reflink=never -r {}/*data {}/copy";

Contender Shell(const std::string& name, const std::string& line) {
  return {name, {"sh", "-c", line}};
}

void MakeTransferred(const fs::path& folder) {
  MakeGolferInstall(folder, kGolfers);
  RunOnce(Shell("", kProgram + "{}" + kTransfer), folder);
}

// Changes the last name of the first golfer in Kelvane.
void ChangeOneGolfer(const fs::path& folder) {
  std::fstream kelvane(folder / "kvdata" / "CLUB.KVG",
                       std::ios::binary | std::ios::in | std::ios::out);
  KelvaneGolfer golfer;
  const auto bytes = golfer.MutableBytes();
  kelvane.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  golfer.Set<"NameLast">("Married");
  kelvane.seekp(0);
  kelvane << golfer.Bytes();
}

void RaceSecondTransfers(int rounds) {
  const std::vector<Contender> contenders = {Shell("transfer", kProgram + "{}" + kTransfer),
                                             Shell("cp of the data", kCopyData)};
  RaceOnInstall("30000 golfers again, nothing changed", MakeTransferred, contenders, 1, rounds);
  const auto make_changed = [](const fs::path& folder) {
    MakeTransferred(folder);
    ChangeOneGolfer(folder);
  };
  RaceOnInstall("30000 golfers again, one changed", make_changed, contenders, 1, rounds);
}

void RaceHistory(int rounds) {
  const auto make = [](const fs::path& folder) {
    MakeGolferInstall(folder, kGolfers);
    fs::create_directories(folder / "before");
    fs::copy_file(folder / "qbdata" / "QBGOLFER.Q9D", folder / "before" / "QBGOLFER.Q9D");
    RunOnce(Shell("", kProgram + "{}" + kTransfer), folder);
  };
  RaceOnInstall("changes of a transfer of 30000 golfers", make,
                {Shell("history show", kProgram + "{} history show 1"),
                 Shell("cmp -l before and after",
                       "cmp -l {}/before/QBGOLFER.Q9D {}/qbdata/QBGOLFER.Q9D | wc -l")},
                1, rounds);
}

void RaceCheck(int rounds) {
  RaceOnInstall(
      "check of 30000 and 30000 golfers",
      [](const fs::path& folder) { MakeGolferInstall(folder, kGolfers); },
      {Shell("check", kProgram + "{} check || [ $? -eq 1 ]"), Shell("cp of the data", kCopyData)},
      1, rounds);
}

void RaceExport(int rounds) {
  constexpr int kPlayers = 2000;
  const auto make = [](const fs::path& folder) {
    MakeScoredInstall(folder, kPlayers, [](int number) { return number % 200 + 1; });
    RunOnce(Shell("", kProgram + "{} export --to {}/csv"), folder);
  };
  RaceOnInstall("export of 2000 players over 5 rounds", make,
                {Shell("export, SQLite", kProgram + "{} export --to {}/golf.sqlite"),
                 Shell("export, CSV", kProgram + "{} export --to {}/tables"),
                 Shell("sqlite3 imports the CSV",
                       "for file in {}/csv/*.csv; do echo \".import --csv $file "
                       "$(basename $file .csv)\"; done | sqlite3 {}/golf.sqlite")},
                2, rounds);
}

void RaceStart(int rounds) {
  RaceOnInstall(
      "start", [](const fs::path& folder) { fs::create_directories(folder); },
      {{"golf-transfer-cli --version", {GOLF_CLI, "--version"}},
       {"sqlite3 --version", {"sqlite3", "--version"}}},
      1, rounds);
}

void RaceManyInstalls(int rounds) {
  const auto make = [](int installs) {
    return [installs](const fs::path& folder) {
      for (int i = 0; i < installs; ++i) MakeGolferInstall(folder / std::to_string(i), 10);
    };
  };
  const Contender loop = Shell(
      "shell loop", "for install in {}/*; do " + kProgram + "$install" + kTransfer + "; done");
  const auto one = RaceOnInstall("10 golfers in 1 install", make(1), {loop}, 0, rounds);
  const auto many =
      RaceOnInstall("10 golfers in each of 1000 installs", make(kInstalls), {loop}, 0, rounds);
  std::printf("%d installs take %.0f times as long as one.\n", kInstalls,
              many[0].seconds / one[0].seconds);
}

}  // namespace
}  // namespace golf::bench

int main(int argc, char** argv) {
  using namespace golf::bench;
  const int rounds = RoundsAsked(argc, argv);
  RaceSecondTransfers(rounds);
  RaceHistory(rounds);
  RaceCheck(rounds);
  RaceExport(rounds);
  RaceStart(rounds);
  RaceManyInstalls(rounds);
  return 0;
}
