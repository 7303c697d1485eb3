#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <functional>
#include <iostream>

#include "cli/commands.h"
#include "cli/console.h"
#include "cli/exit_code.h"
#include "cli/problems.h"
#include "cli/script_line.h"
#include "core/code_page.h"
#include "core/number_text.h"

namespace golf {
namespace {

using Command = std::function<ExitCode()>;

constexpr const char* kDescription =
    "Golf Transfer moves courses, golfers and scores between Kelvane, Quenby and Zandel.";
constexpr const char* kExitCodes =
    "Exit codes: 0 done; 1 refused, nothing changed; 2 wrong usage; 3 an error ended the run, or\n"
    "it carried on over faults; 4 another program holds the files.\n"
    "Every command has a --help of its own.";

constexpr const char* kInstallHint =
    "Name the folder that holds kvdata, qbdata and zddata with --install.";
constexpr const char* kScriptLines =
    "A script has a line for each step; # starts a comment, words with blanks stand in "
    "\"quotes\":\n"
    "  open SCREEN              click CONTROL            set CONTROL TEXT\n"
    "  check CONTROL on|off     double-click CONTROL     type CONTROL TEXT\n"
    "  select CONTROL INDEX     tab CONTROL INDEX        key NAME [CONTROL]\n"
    "  pick CONTROL TEXT        row GRID N               cell GRID ROW COLUMN TEXT\n"
    "  show [CONTROL]           close                    answer TITLE ANSWER [always]\n"
    "  caller WORD\n"
    "Begin with: open TransferMenu, show.\n\n";

// Returns the message for wrong usage. It names an unknown command, which the parser's own message
// does not.
std::string FailureText(const CLI::App* app, const CLI::Error& error) {
  const std::vector<std::string> unknown = app->remaining(true);
  const bool wants_command = std::string_view(error.what()) == "A subcommand is required";
  const std::string text = !wants_command    ? error.what()
                           : unknown.empty() ? "A command is required"
                                             : "There is no command " + unknown.front();
  return text + "\nRun with --help for more information.\n";
}

void AddGlobalOptions(CLI::App& app, Options& options) {
  app.add_option_function<std::string>(
         "--install", [&options](const std::string& folder) { options.install = folder; },
         "The folder with kvdata, qbdata and zddata; the program's own if left out")
      ->type_name("DIR");
  app.add_option_function<std::string>(
         "--now",
         [&options](const std::string& text) {
           CivilTime moment;
           if (!ParseMoment(text, moment)) {
             throw CLI::ValidationError("--now", "is written \"YYYY-MM-DD HH:MM:SS\"");
           }
           options.now = moment;
         },
         "The present moment, \"YYYY-MM-DD HH:MM:SS\"; the clock's if left out")
      ->type_name("MOMENT");
  const auto add_form = [&app](const char* name, std::optional<std::string>& form,
                               const char* help) {
    app.add_option_function<std::string>(
           name, [&form](const std::string& text) { form = TextFromUtf8(text); }, help)
        ->type_name("PATTERN");
  };
  add_form("--short-date", options.regional.short_date,
           "How dates are written, such as dd.MM.yyyy; the system's way if left out");
  add_form("--long-time", options.regional.long_time, "How times are written, such as HH:mm:ss");
  app.add_flag("--json", options.json, "JSON Lines on standard output instead of text for people");
  app.add_flag("--quiet", options.quiet, "No progress");
}

// Adds an option or argument that is a whole number. The parser is not used for it, since it reads
// a number with a leading zero in another base, and codes are listed with leading zeros.
template <class Number>
CLI::Option* AddNumber(CLI::App& command, const std::string& name, Number& number,
                       const std::string& help) {
  const auto read = [&number, name](const std::string& text) {
    const auto value = ReadWholeNumber(text);
    if (!value || *value != static_cast<std::int32_t>(*value)) {
      throw CLI::ValidationError(name, "\"" + text + "\" is no whole number");
    }
    number = static_cast<std::int32_t>(*value);
  };
  return command.add_option_function<std::string>(name, read, help)->type_name("N");
}

CLI::App* AddCommand(CLI::App& app, const std::string& name, const std::string& help,
                     const std::string& example, Command& chosen, Command command) {
  CLI::App* added = app.add_subcommand(name, help);
  added->footer("Example:\n  golf-transfer-cli " + example);
  added->callback([&chosen, added, command = std::move(command)] {
    if (added->get_subcommands().empty()) chosen = command;
  });
  return added;
}

// Adds a command that runs a transfer, with the options of all transfers.
CLI::App* AddTransfer(CLI::App& app, Options& options, const std::string& name,
                      const std::string& help, const std::string& example, Command& chosen,
                      Command command) {
  CLI::App* added = AddCommand(app, name, help,
                               "--install golf-demo " + example +
                                   " --dry-run\n  golf-transfer-cli --install golf-demo " + example,
                               chosen, std::move(command));
  added->add_flag("--dry-run", options.dry_run, "Show what would change, and change nothing");
  added->add_option("--log", options.log, "Append the run's report to this file")
      ->type_name("FILE");
  return added;
}

// Holds the arguments of all commands.
struct Arguments {
  std::string demo_folder;
  ListRequest list;
  DumpRequest dump;
  GolfersKvToQbArguments golfers_kv_to_qb;
  GolfersKvToZdArguments golfers_kv_to_zd;
  GolfersZdToQbArguments golfers_zd_to_qb;
  ScoresQbToKvArguments scores_qb_to_kv;
  ScoresZdToKvArguments scores_zd_to_kv;
  ResultsRequest results;
  CourseRequest course;
  CheckRequest check;
  ExportArguments data_export;
  std::string formats_folder;
  std::string manual;
  std::int32_t run = 0;
  std::string forgotten;
  UndoRequest undo;
  std::string recover;
  std::string script;
  bool start_programs = false;
};

void AddRoster(CLI::App& command, std::string& roster) {
  command.add_option("--roster", roster, "The Kelvane roster, as in list rosters")
      ->required()
      ->type_name("NAME");
}

void AddQuenbyRoster(CLI::App& command, int& to) {
  AddNumber(command, "--to", to,
            "The Quenby roster, as in list qb-rosters; 0 looks through all of\nthem and puts new "
            "golfers on none")
      ->required()
      ->type_name("N");
}

void AddLeague(CLI::App& command, std::string& league) {
  command.add_option("--league", league, "The league, by its base as in list leagues")
      ->required()
      ->type_name("BASE");
}

void AddGolfersKvToQb(CLI::App& app, Options& options, GolfersKvToQbArguments& request,
                      Command& chosen) {
  CLI::App* command = AddTransfer(app, options, "golfers-kv-to-qb",
                                  "Transfer the golfers of a roster, Kelvane to Quenby",
                                  "golfers-kv-to-qb --roster CLUB18 --to 1 --items Flight,7",
                                  chosen, [&] { return RunGolfersKvToQb(options, request); });
  AddRoster(*command, request.roster);
  AddQuenbyRoster(*command, request.to);
  command->add_flag("--marked-only", request.marked_only, "Only golfers who are marked to print");
  command->add_flag("--to-9-hole", request.to_9_hole, "Handicaps of 18 holes divided by 2");
  command->add_flag("--to-18-hole", request.to_18_hole, "Handicaps of 9 holes times 2");
  command
      ->add_option("--items", request.items,
                   "Optional items by name or row, parted by commas: 2 flight,\n"
                   "3 group number, 4 group text, 5 and 6 dates, 7 to 11 texts,\n"
                   "12 to 16 amounts")
      ->delimiter(',')
      ->type_name("LIST");
  command->add_flag("--update-tournament", request.update_tournament,
                    "Put handicaps and indexes into the active tournament as well");
}

void AddLibrary(CLI::App& command, std::string& library) {
  command.add_option("--library", library, "Whose courses: kv, qb or zd; kv if left out")
      ->check(CLI::IsMember({"kv", "qb", "zd"}));
}

void AddCourse(CLI::App& app, const Options& options, CourseRequest& request, Command& chosen) {
  CLI::App* course = app.add_subcommand("course", "Show a course, or look a library over");
  course->require_subcommand(1);
  CLI::App* show = AddCommand(*course, "show", "Show a course with the scorecards of its tees",
                              "--install golf-demo course show 1 --library qb", chosen,
                              [&] { return RunCourseShow(options, request); });
  AddNumber(*show, "N", request.number, "The course, as in list courses")->required();
  CLI::App* check = AddCommand(*course, "check",
                               "Hold every active tee against the rules: a line for each finding",
                               "--install golf-demo course check --library qb", chosen,
                               [&] { return RunCourseCheck(options, request); });
  for (CLI::App* command : {show, check}) AddLibrary(*command, request.library);
}

void AddCheck(CLI::App& app, const Options& options, CheckRequest& request, Command& chosen) {
  CLI::App* check = AddCommand(
      app, "check", "Look all data over and list what is wrong; exit code 1 if there is anything",
      "--install golf-demo check", chosen, [&] { return RunCheck(options, request); });
  check->add_option("--only", request.only, "Only findings of these codes, parted by commas")
      ->delimiter(',')
      ->type_name("CODE");
  check
      ->add_option("--severity", request.severity,
                   "The least severity: note, warning or error; note if left out")
      ->check(CLI::IsMember({"note", "warning", "error"}))
      ->type_name("LEVEL");
  check->add_flag("--repair", request.repair,
                  "Write wrong course indexes anew first; undo puts them back");
}

CLI::Option* AddByteOrderMark(CLI::App& command, bool& bom) {
  return command.add_flag("--bom", bom, "Begin CSV with the byte order mark that Excel needs");
}

void AddExport(CLI::App& app, const Options& options, ExportArguments& request, Command& chosen) {
  CLI::App* command =
      AddCommand(app, "export", "Write all golf data and results as tables for other programs",
                 "--install golf-demo export --to golf.sqlite", chosen,
                 [&] { return RunExport(options, request); });
  command
      ->add_option("--to", request.to,
                   "The new file for SQLite, or the new folder for CSV and JSON Lines")
      ->required()
      ->type_name("TARGET");
  command
      ->add_option("--format", request.format,
                   "sqlite, csv or jsonl. If left out, a target that ends in .sqlite,\n.sqlite3 or "
                   ".db is an SQLite file, one that ends in .jsonl is a\nfolder of JSON Lines, and "
                   "any other one a folder of CSV files")
      ->check(CLI::IsMember(ExportFormats()))
      ->type_name("FORMAT");
  command->add_flag("--replace", request.replace,
                    "Replace an existing file, or the folder of an earlier export");
  command->add_flag("--with-deleted", request.with_deleted, "Also deleted records");
  AddByteOrderMark(*command, request.bom);
}

void AddGolfersKvToZd(CLI::App& app, Options& options, GolfersKvToZdArguments& request,
                      Command& chosen) {
  CLI::App* command =
      AddTransfer(app, options, "golfers-kv-to-zd",
                  "Transfer handicaps and addresses of a roster's golfers, Kelvane to Zandel",
                  "golfers-kv-to-zd --roster CLUB18 --league 00021 --even-if-scored", chosen,
                  [&] { return RunGolfersKvToZd(options, request); });
  AddRoster(*command, request.roster);
  AddLeague(*command, request.league);
  AddNumber(*command, "--percent", request.percent,
            "Percent of the handicap, 10 to 100; any other number is 100, and so is none")
      ->type_name("N");
  command
      ->add_option("--holes", request.holes,
                   "What the league's handicaps are for: 9 halves them; 18 if left out")
      ->check(CLI::IsMember({9, 18}))
      ->type_name("9|18");
  command->add_flag("--even-if-scored", request.even_if_scored,
                    "Also where the league's current event has scores already");
}

void AddGolfersZdToQb(CLI::App& app, Options& options, GolfersZdToQbArguments& request,
                      Command& chosen) {
  CLI::App* command = AddTransfer(app, options, "golfers-zd-to-qb",
                                  "Transfer the golfers of a league, Zandel to Quenby",
                                  "golfers-zd-to-qb --league 00011 --to 1 --double --subs", chosen,
                                  [&] { return RunGolfersZdToQb(options, request); });
  AddLeague(*command, request.league);
  AddQuenbyRoster(*command, request.to);
  command->add_flag("--double", request.doubled, "Handicaps of 9 holes times 2");
  command->add_flag("--subs", request.substitutes, "The league's substitutes as well");
}

void AddScoresQbToKv(CLI::App& app, Options& options, ScoresQbToKvArguments& request,
                     Command& chosen) {
  CLI::App* command = AddTransfer(app, options, "scores-qb-to-kv",
                                  "Transfer the scores of a tournament's round, Quenby to Kelvane",
                                  "scores-qb-to-kv --tournament 1 --round 1 --roster CLUB18",
                                  chosen, [&] { return RunScoresQbToKv(options, request); });
  AddNumber(*command, "--tournament", request.tournament, "As in list tournaments")->required();
  AddNumber(*command, "--round", request.round, "Of the tournament")->required()->type_name("R");
  AddRoster(*command, request.roster);
  AddNumber(*command, "--course", request.course,
            "The Kelvane course, as in list courses, 0 for an away course;\n"
            "the one that the name of the round's course fits best if left out")
      ->type_name("N");
  command->add_flag("--as-tournament", request.as_tournament, "Post them as tournament scores");
  command->add_flag("--points", request.points, "Post points in place of scores");
  command
      ->add_option("--again", request.again,
                   "Whether scores that have been transferred before go again; no if left out")
      ->check(CLI::IsMember({"yes", "no"}))
      ->type_name("yes|no");
  command->add_flag("--nine-into-eighteen", request.nine_into_eighteen,
                    "Join the scores of 9 holes by two for a roster of 18 holes");
}

void AddScoresZdToKv(CLI::App& app, Options& options, ScoresZdToKvArguments& request,
                     Command& chosen) {
  CLI::App* command =
      AddTransfer(app, options, "scores-zd-to-kv", "Transfer scores of a league, Zandel to Kelvane",
                  "scores-zd-to-kv --league 00011 --batch 3 --roster CLUB18", chosen,
                  [&] { return RunScoresZdToKv(options, request); });
  AddLeague(*command, request.league);
  AddNumber(*command, "--batch", request.batch, "What to transfer, by its code as in list events")
      ->required()
      ->type_name("CODE");
  AddRoster(*command, request.roster);
  command
      ->add_option("--again", request.again,
                   "Whether scores that the roster has already go in once more;\n"
                   "left out, they do not, and three in a row end the transfer")
      ->check(CLI::IsMember({"yes", "no"}))
      ->type_name("yes|no");
}

void AddHistory(CLI::App& app, const Options& options, Arguments& args, Command& chosen) {
  CLI::App* history =
      AddCommand(app, "history", "List the runs that are kept, or show or forget them",
                 "--install golf-demo history", chosen, [&] { return RunHistory(options); });
  history->require_subcommand(0, 1);
  CLI::App* show =
      AddCommand(*history, "show", "Show the report of a run and what it changed, field by field",
                 "--install golf-demo courses-kv-to-qb\n  golf-transfer-cli --install golf-demo "
                 "history show 1",
                 chosen, [&] { return RunHistoryShow(options, args.run); });
  AddNumber(*show, "N", args.run, "The run, as in history; 1 is the newest")->required();
  CLI::App* forget = AddCommand(*history, "forget", "Remove runs from the history, for good",
                                "--install golf-demo history forget all", chosen,
                                [&] { return RunHistoryForget(options, args.forgotten); });
  forget->add_option("N", args.forgotten, "The run, as in history, or all")
      ->required()
      ->check([](const std::string& text) {
        return text == "all" || ReadWholeNumber(text) ? ""
                                                      : "\"" + text + "\" is no number of a run";
      })
      ->type_name("N|all");
}

void AddUndo(CLI::App& app, const Options& options, Arguments& args, Command& chosen) {
  CLI::App* undo = AddCommand(app, "undo", "Put back what a run has changed",
                              "--install golf-demo courses-kv-to-qb\n  golf-transfer-cli --install "
                              "golf-demo undo --dry-run",
                              chosen, [&] { return RunUndo(options, args.undo); });
  AddNumber(*undo, "N", args.undo.number,
            "The run, as in history; the newest one that is done, no undo itself,\nand not undone "
            "if left out");
  undo->add_flag("--dry-run", args.undo.dry_run, "Show what would change, and change nothing");
  undo->add_flag("--skip-changed", args.undo.skip_changed,
                 "Leave what was changed since, with all that belongs to it, and undo\nthe rest");
  CLI::App* recover = AddCommand(app, "recover", "Decide about a run that was interrupted",
                                 "--install golf-demo recover --finish", chosen,
                                 [&] { return RunRecover(options, args.recover); });
  CLI::Option_group* choice = recover->add_option_group("What becomes of it");
  choice->require_option(1);
  const auto add = [&](const std::string& name, const char* help) {
    choice->add_flag_callback(
        "--" + name, [&args, name] { args.recover = name; }, help);
  };
  add("finish", "Finish it, except for what another program has changed since");
  add("put-back", "Put it back, except for what another program has changed since");
  add("leave", "Leave it as it is");
}

void AddCommands(CLI::App& app, Options& options, Arguments& args, Command& chosen) {
  AddCommand(app, "demo", "Make a demonstration install in an empty or new folder",
             "demo golf-demo", chosen, [&] { return RunDemo(options, args.demo_folder); })
      ->add_option("DIR", args.demo_folder, "The folder")
      ->required();

  CLI::App* list = AddCommand(app, "list", "List what there is to choose from",
                              "--install golf-demo list courses --library qb", chosen,
                              [&] { return RunList(options, args.list); });
  list->add_option("WHAT", args.list.what, "What to list")
      ->required()
      ->check(CLI::IsMember(ListNames()));
  AddLibrary(*list, args.list.library);
  list->add_option("--league", args.list.league, "Whose events: a base that list leagues shows")
      ->type_name("BASE");
  list->parse_complete_callback([&args] {
    if (args.list.what == "events" && args.list.league.empty()) {
      throw CLI::RequiredError("--league");
    }
  });

  CLI::App* dump = AddCommand(app, "dump", "Show the records of a file, field by field",
                              "dump golf-demo/kvdata/kvcrs.dat --record 1", chosen,
                              [&] { return RunDump(options, args.dump); });
  dump->add_option("FILE", args.dump.file,
                   "A file of Kelvane, Quenby or Zandel, as named here or below the\ninstall")
      ->required();
  AddNumber(*dump, "--record", args.dump.record, "Only this record, from 1");
  CLI::Option* dump_csv = dump->add_flag("--csv", args.dump.csv, "A line a record, with a heading");
  AddByteOrderMark(*dump, args.dump.bom)->needs(dump_csv);

  CLI::App* results = AddCommand(app, "results", "Show what scoring works out",
                                 "--install golf-demo results players --tournament 1", chosen,
                                 [&] { return RunResults(options, args.results); });
  results
      ->add_option("WHAT", args.results.what,
                   "Whose results: players or teams, or custom for teams under a layout")
      ->required()
      ->check(CLI::IsMember(ResultsNames()));
  AddNumber(*results, "--tournament", args.results.tournament,
            "The tournament, as in list tournaments")
      ->required();
  AddNumber(*results, "--round", args.results.round, "The round; the active one if left out")
      ->type_name("R");
  results->parse_complete_callback([&args] {
    if (args.results.what == "custom" && args.results.layout.empty()) {
      throw CLI::RequiredError("--layout");
    }
  });
  results
      ->add_option("--layout", args.results.layout,
                   "The layout of custom results: a pair of files NAME.TR1 and\nNAME.TR2 in qbdata")
      ->type_name("NAME");
  CLI::Option* csv =
      results->add_flag("--csv", args.results.csv, "A line an entry, with a heading");
  AddByteOrderMark(*results, args.results.bom)->needs(csv);
  results
      ->add_option_function<std::string>(
          "--tiebreak",
          [&args](const std::string& name) {
            const auto* const known = std::ranges::find(kTiebreakNames, name);
            args.results.tiebreak =
                static_cast<Tiebreak>(known - std::ranges::begin(kTiebreakNames));
          },
          "What orders equal gross and net scores:\nusga (the last 9, 6, 3 and 1 holes), "
          "handicap (the\nholes in the order of their strokes), 18-to-1, 1-to-18\nor none")
      ->type_name("KEY")
      ->check(CLI::IsMember(
          std::vector<std::string>(std::begin(kTiebreakNames), std::end(kTiebreakNames))));
  CLI::Option* html = results
                          ->add_option("--html", args.results.html,
                                       "Write the results as one web page, for the web or the\n"
                                       "printer. Replaces the file if it exists")
                          ->type_name("FILE.html")
                          ->check([](const std::string& file) {
                            return file.empty() ? std::string("it names no file") : std::string();
                          })
                          ->excludes(csv);
  results
      ->add_flag("--watch", args.results.watch,
                 "Write the page again after each change, until a\nsignal such as Ctrl+C. The page "
                 "refreshes itself")
      ->needs(html);

  AddCourse(app, options, args.course, chosen);
  AddCheck(app, options, args.check, chosen);
  AddExport(app, options, args.data_export, chosen);

  CLI::App* formats = AddCommand(app, "formats", "Write a description of every file format",
                                 "formats --kaitai golf-formats", chosen,
                                 [&] { return RunFormats(options, args.formats_folder); });
  formats
      ->add_option("--kaitai", args.formats_folder,
                   "The folder for the .ksy files, from which the compiler of Kaitai\nStruct makes "
                   "parsers. Files of the same names are replaced")
      ->required()
      ->type_name("DIR");

  AddCommand(app, "manual", "Write the help of Golf Transfer as a web page",
             "manual --to golf-transfer.html", chosen,
             [&] { return RunManual(options, args.manual); })
      ->add_option("--to", args.manual, "The web page. Replaces the file if it exists")
      ->required()
      ->type_name("FILE.html");

  AddTransfer(app, options, "courses-kv-to-qb", "Transfer the course library, Kelvane to Quenby",
              "courses-kv-to-qb", chosen, [&] { return RunCoursesKvToQb(options); });
  AddGolfersKvToQb(app, options, args.golfers_kv_to_qb, chosen);
  AddGolfersKvToZd(app, options, args.golfers_kv_to_zd, chosen);
  AddGolfersZdToQb(app, options, args.golfers_zd_to_qb, chosen);
  AddScoresQbToKv(app, options, args.scores_qb_to_kv, chosen);
  AddScoresZdToKv(app, options, args.scores_zd_to_kv, chosen);

  AddHistory(app, options, args, chosen);
  AddUndo(app, options, args, chosen);

  CLI::App* script = AddCommand(app, "script", "Drive the screens by the lines of a script",
                                "--install golf-demo script clicks.txt", chosen, [&] {
                                  return RunScript(options, args.script, args.start_programs);
                                });
  script->footer(kScriptLines + script->get_footer());
  script->add_option("FILE", args.script, "The script; - reads standard input")->required();
  script->add_flag("--start-programs", args.start_programs,
                   "Really start programs instead of reporting them");
}

// Flushes standard output. Returns an error code if the result could not be written.
ExitCode CheckOutput(ExitCode code) {
  if (std::cout.flush()) return code;
  NoteProblem("Standard output could not be written to: the result is not complete.");
  return code == ExitCode::kDone ? ExitCode::kError : code;
}

ExitCode RunChosen(const Command& command) {
  try {
    return CheckOutput(command());
  } catch (const Refusal& refusal) {
    std::cerr << refusal.what() << std::endl;
    return ExitCode::kRefused;
  } catch (const ScriptError& error) {
    NoteProblem(error.what());
    return ExitCode::kUsage;
  } catch (const NumberedError& error) {
    const bool missing =
        error.Is(ErrorNumber::kPathNotFound) || error.Is(ErrorNumber::kFileNotFound);
    NoteProblem(missing ? error.description() : error.Report());
    if (error.Is(ErrorNumber::kPathNotFound)) NoteProblem(kInstallHint);
    return missing ? ExitCode::kRefused : ExitCodeOf(error);
  } catch (const Stopped& stopped) {
    NoteProblem(stopped.what());
    return ExitCodeOf(stopped);
  } catch (const std::exception& error) {
    std::cerr << "A fault of the program: " << error.what() << std::endl;
    return ExitCode::kError;
  }
}

}  // namespace

int RunCommandLine(int argc, const char* const* argv) {
  PrepareConsole();
  CLI::App app(kDescription, "golf-transfer-cli");
  app.footer(kExitCodes);
  app.set_version_flag("--version", "golf-transfer-cli " GOLF_VERSION);
  app.allow_windows_style_options(false);  // words mean the same on every system
  app.require_subcommand(1);
  app.failure_message(FailureText);
  app.fallthrough();  // global options may also follow the command
  Options options;
  Arguments arguments;
  Command chosen;
  AddGlobalOptions(app, options);
  AddCommands(app, options, arguments, chosen);
  try {
    std::vector<std::string> words = Utf8Arguments(argc, argv);
    std::reverse(words.begin(), words.end());  // the parser needs the last word first
    app.parse(std::move(words));
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? static_cast<int>(ExitCode::kDone)
                                : static_cast<int>(ExitCode::kUsage);
  }
  return static_cast<int>(RunChosen(chosen));
}

}  // namespace golf
