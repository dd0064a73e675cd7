#include "cli/ConfFile.h"
#include "cli/commands/Commands.h"
#include "cli/commands/UploadRun.h"

namespace ostrel::cli {
namespace {

ExitCode RunBackups(CommandContext& context) {
  const SafetyCopies copies = CopiesOf(context);
  const std::vector<SafetyCopies::Copy> list = copies.List();
  context.Show({[&] {
                  Json all = Json::array();
                  for (const SafetyCopies::Copy& copy : list)
                    all.push_back({{"name", copy.name},
                                   {"serial", copy.serial},
                                   {"model", copy.model.empty() ? Json() : Json(copy.model)},
                                   {"date", copy.date},
                                   {"file", copies.PathOf(copy.name)}});
                  return all;
                },
                [&](std::ostream& out) {
                  for (const SafetyCopies::Copy& copy : list)
                    out << Printable(copy.name) << "  "
                        << (copy.model.empty() ? "of no model" : copy.model) << "  " << copy.date
                        << '\n';
                }});
  if (list.empty()) context.console.Note("no safety copies in " + copies.Folder());
  return ExitCode::Done;
}

ExitCode RunRestore(CommandContext& context, UploadOptions options) {
  const SafetyCopies copies = CopiesOf(context);
  const auto list = copies.List();
  if (std::ranges::find(list, options.copy, &SafetyCopies::Copy::name) == list.end())
    return context.console.Fail(ExitCode::BadFile, "there is no safety copy " + options.copy +
                                                       ": \"ostrelctl backups\" lists them");
  options.file = copies.PathOf(options.copy);
  return RunUpload(context, options);
}

}  // namespace

Command AddBackups(CLI::App& app) {
  return {app.add_subcommand("backups", "List the safety copies of loggers, the oldest first"),
          RunBackups};
}

Command AddRestore(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("restore", "Write a safety copy back into its logger");
  const auto options = std::make_shared<UploadOptions>();
  parser->add_option("NAME", options->copy, "Name of the copy, as \"backups\" lists it")
      ->required();
  AddUploadFlags(*parser, *options);
  return {parser, [options](CommandContext& context) { return RunRestore(context, *options); }};
}

}  // namespace ostrel::cli
