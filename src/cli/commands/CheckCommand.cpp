#include <algorithm>

#include "cli/Json.h"
#include "cli/commands/Commands.h"
#include "shell/check/CheckRules.h"

namespace ostrel::cli {
namespace {

struct CheckOptions {
  std::string file;
  std::vector<std::string> silenced;
};

std::string_view SeverityText(Severity severity) {
  return severity == Severity::Error ? "error" : "warning";
}

void WriteFound(CommandContext& context, const std::string& file,
                const std::vector<FoundByRule>& found, std::size_t errors) {
  JsonWriter json(context.console.Out());
  json.Object([&] {
    json.Member("file", file);
    json.Member("errors", errors);
    json.Member("warnings", found.size() - errors);
    json.ArrayMember("findings", [&] {
      for (const auto& [rule, finding] : found)
        json.Object([&] {
          json.Member("rule", rule->id);
          json.Member("severity", SeverityText(rule->severity));
          json.Member("section", finding.section);
          json.Member("key", finding.key);
          json.Member("sentence", finding.sentence);
        });
    });
  });
  json.End();
}

void PrintFound(Console& console, const std::vector<FoundByRule>& found) {
  for (const auto& [rule, finding] : found) {
    console.Out() << SeverityText(rule->severity) << ": ";
    if (!finding.section.empty())
      console.Out() << '[' << Printable(finding.section) << ']' << (finding.key.empty() ? "" : " ")
                    << Printable(finding.key) << ": ";
    console.Out() << Printable(finding.sentence) << " (" << rule->id << ")\n";
  }
}

ExitCode RunCheck(CommandContext& context, const CheckOptions& options) {
  for (const std::string& id : options.silenced)
    if (std::ranges::find(Rules(), id, &Rule::id) == Rules().end())
      return context.console.Fail(ExitCode::Usage, "there is no rule " + id);
  const auto configuration = context.OpenFile(options.file);
  if (!configuration) return ExitCode::BadFile;
  IniClass document(context.environment.files);
  document.OpenINI(options.file, false);
  const Examined file(*configuration, context.options.features, document, context.Translator());
  const std::vector<FoundByRule> found = Examine(file, options.silenced);
  const auto errors = static_cast<std::size_t>(std::ranges::count_if(
      found, [](const FoundByRule& one) { return one.rule->severity == Severity::Error; }));
  if (context.options.json)
    WriteFound(context, options.file, found, errors);
  else
    PrintFound(context.console, found);
  if (found.empty()) context.console.Note(options.file + ": nothing found");
  return errors > 0 ? ExitCode::Differences : ExitCode::Done;
}

std::string RuleList() {
  std::string list = "Rules, for --silence:\n";
  for (const Rule& rule : Rules())
    list += "  " + std::string(rule.id) + " (" + std::string(SeverityText(rule.severity)) +
            "): " + std::string(rule.summary) + "\n";
  return list;
}

}  // namespace

Command AddCheck(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("check", "Look for what is wrong in a configuration file");
  const auto options = std::make_shared<CheckOptions>();
  parser->add_option("FILE", options->file, "Configuration file")->required();
  parser->add_option("--silence", options->silenced, "Leave out a rule, by its id")
      ->allow_extra_args(false);
  parser->footer(RuleList());
  return {parser, [options](CommandContext& context) { return RunCheck(context, *options); }};
}

}  // namespace ostrel::cli
