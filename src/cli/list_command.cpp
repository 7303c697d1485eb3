#include "cli/list_command.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "cli/history_command.h"
#include "cli/plain_text.h"

namespace golf {
namespace {

struct ListKind {
  std::string_view what;
  void (*list)(SharedState&, const ListRequest&, ListWriter&);
};

constexpr ListKind kKinds[] = {{"rosters", ListRosters},         {"courses", ListCourses},
                               {"tournaments", ListTournaments}, {"qb-rosters", ListQuenbyRosters},
                               {"leagues", ListZandelLeagues},   {"events", ListEvents}};

}  // namespace

void ListWriter::Add(const Json& object, std::vector<std::string> cells) {
  if (json_) {
    WriteJsonLine(object);
  } else {
    rows_.push_back(std::move(cells));
  }
}

void ListWriter::Finish() const {
  if (!json_) WriteTable(headings_, rows_);
}

std::vector<std::string> ListNames() {
  std::vector<std::string> names;
  for (const ListKind& kind : kKinds) names.emplace_back(kind.what);
  return names;
}

ExitCode RunList(const Options& options, const ListRequest& request) {
  const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                 [&](const ListKind& known) { return known.what == request.what; });
  const auto application = StartApplication(options);
  application->state().files.gate().RefuseChanges();
  NoteUnfinished(application->state());
  ListWriter out(options.json);
  kind->list(application->state(), request, out);
  out.Finish();
  return ExitCode::kDone;
}

}  // namespace golf
