#include "batch/batch_options.h"

#include <CLI/CLI.hpp>

#include "batch/batch_output.h"

namespace barvon {
namespace {

constexpr char kAbout[] =
    "barvon-run checks, exports and runs BARVON projects (.DUI) without a window.\n"
    "Exit codes: 0 done, 1 projects have errors, 2 something could not be done.";

constexpr int kMostJobs = 1024;

constexpr char kCompanion[] = "companion", kExternal[] = "external";  // --solver

void Add_Files(CLI::App* command, Batch_Options& options) {
  command->add_option("FILE", options.files, "project files (.DUI)")->required();
}

std::nullopt_t Wrong(const std::string& why, int& exit_code) {
  Say_Problem("", why + " (see barvon-run --help)");
  exit_code = kNotDone;
  return std::nullopt;
}

std::string Words_In_Order(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

}  // namespace

std::optional<Batch_Options> Parse_Command_Line(int argc, char** argv, int& exit_code) {
  Batch_Options options;
  CLI::App app(kAbout, "barvon-run");
  app.set_version_flag("--version", std::string("barvon-run ") + BARVON_VERSION);
  app.require_subcommand(1);

  CLI::App* check = app.add_subcommand(
      "check", "test projects: a line for each finding, file TAB message TAB reference");
  Add_Files(check, options);

  CLI::App* model = app.add_subcommand("export", "write the model input (.DUE) of projects");
  Add_Files(model, options);
  model->add_option("-o,--output", options.output,
                    "write to this file, or into this folder; beside the project if not given");

  CLI::App* report = app.add_subcommand(
      "report", "write a report of projects: their values, pictures and findings (.html)");
  Add_Files(report, options);
  report->add_option("-o,--output", options.output,
                     "write to this file, or into this folder; beside the project if not given");
  report->add_flag("--pdf", options.pdf,
                   "write PDF, with the help of the window program installed beside this one");

  CLI::App* run = app.add_subcommand("run", "run the solver on projects and keep its outputs");
  Add_Files(run, options);
  std::string solver;
  run->add_option("--solver", solver,
                  "companion: the program's own; external: one of the solvers' folder;\n"
                  "if not given, an external one where there is one")
      ->check(CLI::IsMember({kCompanion, kExternal}));
  const CLI::Option* solver_folder = run->add_option(
      "--solver-dir", options.solver_folder,
      "folder that holds external solvers; the user's or the program's if not given");
  run->add_option("--jobs", options.jobs, "projects that run at the same time")
      ->check(CLI::Range(1, kMostJobs));
  run->add_flag("--despite-errors", options.despite_errors, "run projects that have errors too");

  CLI::App* show = app.add_subcommand("show", "show what a project holds");
  show->add_option("FILE", options.files, "project file (.DUI)")->required()->expected(1);
  show->add_flag("--json", options.json,
                 "one object with every field under its name; nan, inf and -inf as texts");

  CLI::App* fresh = app.add_subcommand("new", "write a new project");
  fresh->add_option("FILE", options.files, "project file (.DUI)")->required()->expected(1);
  fresh->add_flag("--force", options.force, "replace a file that exists");

  CLI::App* database = app.add_subcommand("database", "look after the files of the database");
  database->require_subcommand(1);
  CLI::App* check_database = database->add_subcommand(
      "check", "tell where the files fall out of step: a line each, file TAB line TAB text");
  check_database->add_option("DIR", options.folder, "folder with the seven files")->required();
  check_database->add_flag("--mend", options.mend,
                           "put records into their columns; copies are kept as .bak");

  check->callback([&] { options.command = Batch_Command::Check; });
  model->callback([&] { options.command = Batch_Command::Export; });
  report->callback([&] { options.command = Batch_Command::Report; });
  run->callback([&] { options.command = Batch_Command::Run; });
  show->callback([&] { options.command = Batch_Command::Show; });
  fresh->callback([&] { options.command = Batch_Command::New; });
  check_database->callback([&] { options.command = Batch_Command::Check_Database; });

  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& wanted) {  // help or version
    app.exit(wanted);
    exit_code = kDone;
    return std::nullopt;
  } catch (const CLI::ExtrasError&) {
    // The library tells them from the last to the first.
    return Wrong("not expected: " + Words_In_Order(app.remaining(true)), exit_code);
  } catch (const CLI::ParseError& wrong) {
    return Wrong(wrong.what(), exit_code);
  }
  if (solver_folder->count() > 0 && options.solver_folder.empty()) {
    return Wrong("--solver-dir names no folder", exit_code);  // an empty variable of a script
  }
  if (solver == kCompanion && !options.solver_folder.empty()) {
    return Wrong("--solver companion takes no --solver-dir, which is for external solvers",
                 exit_code);
  }
  if (!solver.empty()) {
    options.solver = solver == kCompanion ? Solver_Choice::Companion : Solver_Choice::External;
  }
  return options;
}

}  // namespace barvon
