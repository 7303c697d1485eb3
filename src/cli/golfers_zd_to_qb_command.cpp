#include "cli/commands.h"
#include "cli/picker_presses.h"
#include "cli/transfer_command.h"
#include "core/code_page.h"
#include "screens/transfers/zd_to_qb.h"

namespace golf {
namespace {

void Work(HeadlessHost& host, ZDtoQB& screen, const GolfersZdToQbArguments& request) {
  PickLeague(host, screen, "SourceButton", screen.picker, TextFromUtf8(request.league));
  host.Press(screen, "DestButton");
  host.Operate(screen, [&] {
    screen.Handicapto18.Choose(request.doubled);
    screen.TransferSubs.Choose(request.substitutes);
  });
  host.Press(screen, "TransferButton");
}

}  // namespace

ExitCode RunGolfersZdToQb(const Options& options, const GolfersZdToQbArguments& request) {
  const auto work = [&request](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRosters") {
      PickQuenbyRoster(host, screen, request.to);
    } else {
      Work(host, dynamic_cast<ZDtoQB&>(screen), request);
    }
  };
  return RunTransferCommand(
      options, {.name = "golfers-zd-to-qb", .screen = "ZDtoQB", .work = work, .log = "Message"});
}

}  // namespace golf
