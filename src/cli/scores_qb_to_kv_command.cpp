#include "cli/commands.h"
#include "cli/picker_presses.h"
#include "cli/transfer_command.h"
#include "core/code_page.h"
#include "screens/transfers/qb_to_kv.h"

namespace golf {
namespace {

// Chooses the list item with this number. Returns false if there is none.
bool ChooseNumber(HeadlessHost& host, Screen& screen, List& list,
                  std::int32_t (*number_of)(const std::string&), std::int32_t number) {
  const auto& items = list.items();
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (number_of(items[i]) != number) continue;
    host.Operate(screen, [&] { list.Select(static_cast<int>(i)); });
    return true;
  }
  return false;
}

// Chooses a round. A tournament with one round has no list of rounds.
void ChooseRound(HeadlessHost& host, QBtoKV& screen, int round) {
  const bool listed = screen.RoundList.IsShown();
  const int rounds = listed ? static_cast<int>(screen.RoundList.items().size()) : 1;
  if (round < 1 || round > rounds) {
    throw Refusal("There is no round " + std::to_string(round) + "; the tournament has " +
                  std::to_string(rounds) + ".");
  }
  if (listed) host.Operate(screen, [&] { screen.RoundList.Select(round - 1); });
}

void Work(HeadlessHost& host, QBtoKV& screen, const ScoresQbToKvArguments& request) {
  host.Press(screen, "DestButton");
  if (!ChooseNumber(host, screen, screen.TournamentList, QBtoKV::TournamentOf,
                    request.tournament)) {
    throw Refusal("There is no tournament " + std::to_string(request.tournament) + ".");
  }
  ChooseRound(host, screen, request.round);
  if (request.course &&
      !ChooseNumber(host, screen, screen.CourseCombo, QBtoKV::CourseOf, *request.course)) {
    throw Refusal("Kelvane has no course " + std::to_string(*request.course) +
                  " for the holes of this roster.");
  }
  if (request.as_tournament) Tick(host, screen, screen.TCheck, "");
  if (request.points) {
    host.QueueAnswer("Transfer QB points to KV Score?", "YES");
    Tick(host, screen, screen.TCheck2, "");
  }
  host.QueueAnswer("Transfer again?", request.again, true);
  host.QueueAnswer("Continue", request.nine_into_eighteen ? "Yes" : "No");
  host.Press(screen, "TransferButton");
}

}  // namespace

ExitCode RunScoresQbToKv(const Options& options, const ScoresQbToKvArguments& request) {
  const auto work = [&request](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRoster") {
      PickKelvaneRoster(host, screen, TextFromUtf8(request.roster));
    } else {
      Work(host, dynamic_cast<QBtoKV&>(screen), request);
    }
  };
  return RunTransferCommand(options, {.name = "scores-qb-to-kv",
                                      .screen = "QBtoKV",
                                      .work = work,
                                      .carries_on = true,
                                      .log = "Message",
                                      .cancelled_by = CancellingAnswer{"Continue", BoxButton::kNo,
                                                                       "--nine-into-eighteen"}});
}

}  // namespace golf
