// The file of a simulated logger's state; its line "model = ..." tells which logger loads it.

#include "NoLine.h"
#include "Target.h"
#include "sim/Logger.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostrel;
  constexpr std::string_view kModel = "model = ";
  const std::string_view text = fuzz::TextOf(data, size);
  std::string_view rest = text.substr(std::min(text.find(kModel), text.size()));
  std::string_view word = fuzz::TakeLine(rest);
  word.remove_prefix(std::min(kModel.size(), word.size()));
  const sim::Model model = sim::ParseModel(word).value_or(sim::Model::KA1);
  fuzz::NoLine line;
  sim::Logger logger(line.loop, line, sim::MakeDefaultOptions(model));
  const std::string before = logger.SaveState();
  std::string why;
  if (!logger.LoadState(text, why)) {
    fuzz::Require(!why.empty(), "a refusal says why");
    fuzz::Require(logger.SaveState() == before, "a refused state changes nothing");
    return 0;
  }
  const std::string saved = logger.SaveState();
  fuzz::Require(logger.LoadState(saved, why), "a saved state is loaded");
  fuzz::Require(logger.SaveState() == saved, "a loaded state is as it was saved");
  return 0;
}
