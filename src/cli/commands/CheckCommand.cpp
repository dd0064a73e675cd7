#include <algorithm>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
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

Json FoundJson(const std::string& file, const std::vector<FoundByRule>& found, std::size_t errors) {
  Json list = Json::array();
  for (const auto& [rule, finding] : found)
    list.push_back({{"rule", rule->id},
                    {"severity", SeverityText(rule->severity)},
                    {"section", finding.section},
                    {"key", finding.key},
                    {"sentence", Filled(finding.sentence)}});
  return {{"file", file},
          {"errors", errors},
          {"warnings", found.size() - errors},
          {"findings", std::move(list)}};
}

void PrintFound(std::ostream& out, const std::vector<FoundByRule>& found) {
  for (const auto& [rule, finding] : found)
    out << SeverityText(rule->severity) << ": " << FindingText(finding) << " (" << rule->id
        << ")\n";
}

ExitCode Report(CommandContext& context, const CheckOptions& options,
                const std::vector<FoundByRule>& found) {
  const auto errors = static_cast<std::size_t>(std::ranges::count_if(
      found, [](const FoundByRule& one) { return one.rule->severity == Severity::Error; }));
  context.Show({[&] { return FoundJson(options.file, found, errors); },
                [&](std::ostream& out) { PrintFound(out, found); }});
  if (found.empty()) context.console.Note(options.file + ": nothing found");
  return errors > 0 ? ExitCode::Differences : ExitCode::Done;
}

ExitCode RunCheck(CommandContext& context, const CheckOptions& options) {
  for (const std::string& id : options.silenced)
    if (std::ranges::find(Rules(), id, &Rule::id) == Rules().end())
      return context.console.Fail(ExitCode::Usage, "there is no rule " + id);
  const auto configuration = context.OpenFile(options.file);
  if (!configuration) return ExitCode::BadFile;
  IniClass document(context.platform.files);
  document.OpenINI(options.file, false);
  return WithFeatures(context, options.file, [&](std::optional<std::int32_t> features) {
    return Report(context, options,
                  Examine(Examined(*configuration, features, document, context.Translator()),
                          options.silenced));
  });
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
  parser->add_option("FILE", options->file, "Configuration file, - for standard input")->required();
  parser->add_option("--silence", options->silenced, "Leave out a rule, by its id")
      ->allow_extra_args(false);
  parser->footer(RuleList());
  return {parser, [options](CommandContext& context) { return RunCheck(context, *options); }};
}

}  // namespace ostrel::cli
