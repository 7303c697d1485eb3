
#include "cli/commands.h"
#include "cli/picker_presses.h"
#include "cli/transfer_command.h"
#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text.h"
#include "screens/transfers/kv_to_qb.h"

namespace golf {
namespace {

constexpr int kFirstOptionalRow = 2;

// Returns the row of an optional item by its number or by either of its names, or 0 if there is no
// such item.
int RowOfItem(const Grid& grid, const std::string& item) {
  if (item.empty()) return 0;
  const auto number = ReadWholeNumber(item);
  if (number && *number >= kFirstOptionalRow && *number <= grid.rows()) {
    return static_cast<int>(*number);
  }
  for (int row = kFirstOptionalRow; row <= grid.rows(); ++row) {
    for (const int column : {KVtoQB::kItemColumn, KVtoQB::kQuenbyItemColumn}) {
      if (EqualIgnoringCase(grid.text(column, row), item)) return row;
    }
  }
  return 0;
}

void TickItem(HeadlessHost& host, KVtoQB& screen, const std::string& item_utf8) {
  const int row = RowOfItem(screen.grid1, std::string(Trim(TextFromUtf8(item_utf8))));
  if (row == 0) throw Refusal("There is no optional item " + item_utf8 + ".");
  host.Operate(screen, [&] { screen.grid1.Enter(KVtoQB::kTickColumn, row, "1"); });
}

void Work(HeadlessHost& host, KVtoQB& screen, const GolfersKvToQbArguments& request) {
  host.Press(screen, "SourceButton");
  host.Press(screen, "DestButton");
  if (request.marked_only) Tick(host, screen, screen.MarkedtoPrint, "");
  if (request.to_9_hole) {
    Tick(host, screen, screen.Convert18Hcpto9Hcp,
         "--to-9-hole: the handicaps of this roster are not of 18 holes.");
  }
  if (request.to_18_hole) {
    Tick(host, screen, screen.Convert9Hcpto18Hcp,
         "--to-18-hole: the handicaps of this roster are of 18 holes already.");
  }
  for (const std::string& item : request.items) TickItem(host, screen, item);
  host.QueueAnswer("Update Handicaps?", request.update_tournament ? "YES" : "No");
  host.Press(screen, "TransferButton");
}

}  // namespace

ExitCode RunGolfersKvToQb(const Options& options, const GolfersKvToQbArguments& request) {
  const auto work = [&request](HeadlessHost& host, Screen& screen) {
    if (screen.name() == "LoadRoster") {
      PickKelvaneRoster(host, screen, TextFromUtf8(request.roster));
    } else if (screen.name() == "LoadRosters") {
      PickQuenbyRoster(host, screen, request.to);
    } else {
      Work(host, dynamic_cast<KVtoQB&>(screen), request);
    }
  };
  return RunTransferCommand(
      options, {.name = "golfers-kv-to-qb", .screen = "KVtoQB", .work = work, .carries_on = true});
}

}  // namespace golf
