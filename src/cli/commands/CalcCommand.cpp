#include <algorithm>

#include "base/Numbers.h"
#include "cli/commands/Commands.h"
#include "host/LoggerText.h"
#include "lang/Calculators.h"

namespace ostrel::cli {
namespace {

struct PulseOptions {
  std::string amount, unit, flow;
  std::int16_t timeBase = 0;
};

std::string NoNumber(const std::string& text) {
  return IsFloatText(text) ? std::string() : text + " is no number";
}

/// The words of units, for a command line.
template <class Units>
std::vector<std::string> WordsOf(const Units& units) {
  std::vector<std::string> words;
  for (const auto& unit : units) words.emplace_back(unit.word);
  return words;
}

template <class Units>
const auto& UnitOf(const Units& units, const std::string& word) {
  return *std::ranges::find_if(units, [&](const auto& unit) { return unit.word == word; });
}

ExitCode RunPulse(CommandContext& context, const PulseOptions& options) {
  const auto amount = ToFloat(NumVal(options.amount));
  const auto ratio = amount ? PulseRatio(*amount, UnitOf(kPulseUnits, options.unit),
                                         options.timeBase, UnitOf(kFlowUnits, options.flow))
                            : std::nullopt;
  if (!ratio)
    return context.console.Fail(ExitCode::Usage,
                                "there is no ratio for a time base of 0 seconds, nor one beyond "
                                "the largest number");
  return context.Show({[&] {
                         return Json{{"ratio", JsonNumber(*ratio)}};
                       },
                       [&](std::ostream& out) { out << DecText(*ratio) << '\n'; }});
}

ExitCode RunMask(CommandContext& context, const std::vector<int>& bits) {
  std::int32_t mask = 0;
  for (const int bit : bits) mask = WithBit(mask, bit);
  return context.Show({[&] {
                         return Json{{"mask", mask}};
                       },
                       [&](std::ostream& out) { out << mask << '\n'; }});
}

}  // namespace

Command AddCalc(CLI::App& app) {
  CLI::App* parser = app.add_subcommand("calc", "Work out a value for a field");
  parser->require_subcommand(1);
  CLI::App* pulse = parser->add_subcommand("pulse", "The ratio of a flow channel");
  const auto options = std::make_shared<PulseOptions>();
  pulse->add_option("AMOUNT", options->amount, "What passes with each pulse")
      ->required()
      ->check(NoNumber);
  pulse->add_option("UNIT", options->unit, "Unit of the amount")
      ->required()
      ->check(CLI::IsMember(WordsOf(kPulseUnits)));
  pulse->add_option("SECONDS", options->timeBase, "Time base of the channel")
      ->required()
      ->check(NoWholeNumber);
  pulse->add_option("FLOW", options->flow, "Unit in which the flow is to be told")
      ->required()
      ->check(CLI::IsMember(WordsOf(kFlowUnits)));
  CLI::App* mask = parser->add_subcommand("mask", "The mask of some bits, in decimal");
  const auto bits = std::make_shared<std::vector<int>>();
  mask->add_option("BIT", *bits, "Bits, counted from 0")
      ->required()
      ->check(NoWholeNumber)
      ->check(CLI::Range(0, kMaskBits - 1));
  for (CLI::App* inner : {pulse, mask}) inner->fallthrough();
  return {parser, [pulse, options, bits](CommandContext& context) {
            return pulse->parsed() ? RunPulse(context, *options) : RunMask(context, *bits);
          }};
}

}  // namespace ostrel::cli
