#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "host/LoggerText.h"

namespace ostrel::cli {
namespace {

struct OutputOptions {
  std::int16_t index = 0;
  std::string state;
};

ExitCode RunOutput(Online& online, const OutputOptions& options) {
  Console& console = online.context.console;
  const bool on = options.state == "on";
  const TargetProfile& model = online.configurator.profile;
  if (options.index < 0 || options.index >= model.OutputCount)
    return console.Fail(ExitCode::Usage,
                        "the " + model.TargetName +
                            (model.OutputCount == 0 ? " has no outputs"
                                                    : " has " + std::to_string(model.OutputCount) +
                                                          " outputs, counted from 0"));
  const ExitCode sent = online.session.Run([&] {
    Comms& comms = online.configurator.comms;
    const LinkResult result = comms.SetSingleOutput(options.index, on);
    // What is answered does not count, but that something is.
    return result && comms.RxLine.empty() ? LinkFault{LinkFault::Kind::Silence} : result;
  });
  if (sent != ExitCode::Done) return sent;
  return online.context.Show({[&] {
                                return Json{{"output", options.index}, {"on", on}};
                              },
                              [&](std::ostream& out) {
                                out << "output " << options.index << " set " << options.state
                                    << '\n';
                              }});
}

}  // namespace

Command AddOutput(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("output", "Set an output of the logger");
  const auto options = std::make_shared<OutputOptions>();
  parser->add_option("INDEX", options->index, "Output, counted from 0")
      ->required()
      ->check(NoWholeNumber);
  parser->add_option("STATE", options->state, "on or off")
      ->required()
      ->check(CLI::IsMember({"on", "off"}));
  return {parser, [options](CommandContext& context) {
            return RunOnline(context, "",
                             [&](Online& online) { return RunOutput(online, *options); });
          }};
}

}  // namespace ostrel::cli
