// Lists Zandel's leagues and the batches of scores of a league.

#include "cli/list_command.h"
#include "cli/plain_text.h"
#include "core/code_page.h"
#include "core/number_text.h"
#include "core/text.h"
#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

// Returns the league's name. It is cut or empty if the control file is truncated.
std::string NameOf(const Record<LeagueControlLayout>& control) {
  const std::string name = control.Get<"LeagueName">();
  return std::string(Trim(std::string_view(name).substr(0, name.find('\0'))));
}

}  // namespace

void ListZandelLeagues(SharedState& state, const ListRequest&, ListWriter& out) {
  out.SetHeadings({"Base", "League", "Division", "Holes", "Current event"});
  for (const ListedLeague& league : ListLeagues(state)) {
    const std::string name = NameOf(league.control);
    const std::string digit(1, league.base.back());
    const int division = league.whole ? 0 : static_cast<int>(LeadingNumber(digit));
    const int holes = league.control.Get<"LeagueHoles">();
    const int event = league.control.Get<"CurrentEvent">();
    out.Add({{"base", JsonText(league.base)},
             {"name", JsonText(name)},
             {"division", division},
             {"holes", holes},
             {"currentEvent", event}},
            {PlainCell(league.base), PlainCell(name), league.whole ? "all" : PlainCell(digit),
             std::to_string(holes), std::to_string(event)});
  }
}

void ListEvents(SharedState& state, const ListRequest& request, ListWriter& out) {
  out.SetHeadings({"Code", "Scores", "Current"});
  const std::string base = TextFromUtf8(request.league);
  if (!LeagueExists(state, base)) throw Refusal("There is no league " + request.league + ".");
  const auto batches = LoadScoreBatches(state, base).value_or(ScoreBatches{});
  int place = 0;
  for (const ScoreBatch& batch : batches.list) {
    // Place 0 is practice. It is selected if there is no current event, but it is not a current
    // event.
    const bool current = place > 0 && place == batches.selected;
    out.Add({{"code", batch.code}, {"text", JsonText(batch.text)}, {"current", current}},
            {FormatNumber(batch.code, "000"), PlainCell(batch.text), current ? "*" : ""});
    ++place;
  }
}

}  // namespace golf
