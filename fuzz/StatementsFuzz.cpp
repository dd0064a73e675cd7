// The statements of an upload, one a line of the input, as the simulated logger takes them; the
// first line names its model.

#include "NoLine.h"
#include "Target.h"
#include "sim/Logger.h"
#include "sim/wire/LineComposer.h"
#include "sim/wire/StatementParser.h"

namespace {

using namespace ostrel;

constexpr unsigned kWhole = 16;

/// What was taken can be told, saved and loaded.
void TellAndKeep(const sim::Configuration& conf, sim::Model model) {
  fuzz::NoLine line;
  sim::Logger logger(line.loop, line, sim::MakeDefaultOptions(model));
  logger.SetConf(conf);
  sim::ConfigurationRecords(conf, logger.Self());
  const std::string saved = logger.SaveState();
  std::string why;
  fuzz::Require(logger.LoadState(saved, why), "a saved state is loaded");
  fuzz::Require(logger.SaveState() == saved, "a loaded state is as it was saved");
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view whole = fuzz::TextOf(data, size);
  std::string_view rest = whole;
  const sim::Model model = sim::ParseModel(fuzz::TakeLine(rest)).value_or(sim::Model::VR200);
  const sim::Identity self{model, 0xFFFFFFFF};
  sim::Configuration conf;
  while (!rest.empty()) {
    sim::Configuration draft = conf;
    if (sim::ApplyStatement(fuzz::TakeLine(rest), self, draft).empty()) conf = std::move(draft);
  }
  if (fuzz::IsChosen(whole, kWhole)) TellAndKeep(conf, model);
  return 0;
}
