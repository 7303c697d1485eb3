#include <algorithm>

#include "cli/commands.h"
#include "cli/picker_presses.h"
#include "cli/transfer_command.h"
#include "core/code_page.h"
#include "screens/transfers/zd_to_kv.h"
#include "stores/zandel/zandel_batches.h"

namespace golf {
namespace {

void PickBatch(HeadlessHost& host, ZDtoKV& screen, const ScoresZdToKvArguments& request) {
  const auto& items = screen.EventList.items();
  const auto item = std::find_if(items.begin(), items.end(), [&](const std::string& listed) {
    return BatchCode(listed) == request.batch;
  });
  if (item == items.end()) {
    throw Refusal("The league " + request.league + " has no batch " +
                  std::to_string(request.batch) + ".");
  }
  host.Operate(screen, [&] { screen.EventList.Select(static_cast<int>(item - items.begin())); });
}

void Work(HeadlessHost& host, ZDtoKV& screen, const ScoresZdToKvArguments& request) {
  PickLeague(host, screen, "SourceButton", screen.picker, TextFromUtf8(request.league));
  PickBatch(host, screen, request);
  host.Press(screen, "DestButton");
  if (!request.again.empty()) {
    host.QueueAnswer("Re-transfer score?", request.again, true);
    host.QueueAnswer("Cancel Transfer?", "No", true);
  }
  host.Press(screen, "TransferButton");
}

}  // namespace

ExitCode RunScoresZdToKv(const Options& options, const ScoresZdToKvArguments& request) {
  const auto work = [&request](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRoster") {
      PickKelvaneRoster(host, screen, TextFromUtf8(request.roster));
    } else {
      Work(host, dynamic_cast<ZDtoKV&>(screen), request);
    }
  };
  return RunTransferCommand(
      options, {.name = "scores-zd-to-kv",
                .screen = "ZDtoKV",
                .work = work,
                .log = "Message",
                .cancelled_by = CancellingAnswer{"Cancel Transfer?", BoxButton::kYes, "--again"}});
}

}  // namespace golf
