#include "cli/commands.h"
#include "cli/picker_presses.h"
#include "cli/transfer_command.h"
#include "core/code_page.h"
#include "screens/transfers/kv_to_zd.h"

namespace golf {
namespace {

void Work(HeadlessHost& host, KVtoZD& screen, const GolfersKvToZdArguments& request) {
  PickLeague(host, screen, "FindZDButton", screen.picker, TextFromUtf8(request.league));
  host.Press(screen, "FindKVMButton");
  host.Operate(screen, [&] {
    screen.HandicapType[request.holes == 9 ? 0 : 1].Choose(true);
    if (request.percent) screen.HandicapPrct.SetText(std::to_string(*request.percent));
  });
  host.QueueAnswer("Question", request.even_if_scored ? "Yes" : "No");
  host.Press(screen, "TransferButton");
}

}  // namespace

ExitCode RunGolfersKvToZd(const Options& options, const GolfersKvToZdArguments& request) {
  const auto work = [&request](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRoster") {
      PickKelvaneRoster(host, screen, TextFromUtf8(request.roster));
    } else {
      Work(host, dynamic_cast<KVtoZD&>(screen), request);
    }
  };
  return RunTransferCommand(
      options, {.name = "golfers-kv-to-zd",
                .screen = "KVtoZD",
                .work = work,
                .log = "Message",
                .cancelled_by = CancellingAnswer{"Question", BoxButton::kNo, "--even-if-scored"}});
}

}  // namespace golf
