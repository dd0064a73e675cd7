#include <algorithm>
#include <array>
#include <cctype>
#include <map>

#include "blocks/inputs/InterfaceCodes.h"
#include "blocks/inputs/MathChannels.h"
#include "blocks/inputs/Probes.h"
#include "shell/check/CheckRules.h"

namespace ostrel {
namespace {

/// Runs `look` on each probe that the model has and that is on.
template <class Look>
void EachProbe(const Examined& file, const Look& look) {
  const int count = std::min<int>(file.Model().OneWireCount, Probes::kChannels);
  for (int i = 0; i < count; ++i)
    if (const ConfOneWire& probe = file.Conf().OneWire[i]; probe.INTERFAZ != kInterfaceOff)
      look(i, probe);
}

/// The channels of a kind that an equation can name, and how many of them a model has.
struct NamedChannels {
  std::string_view token;
  std::int16_t TargetProfile::*count;
};
constexpr std::array<NamedChannels, 6> kNamedChannels{{
    {"AI", &TargetProfile::AnalogCount},
    {"DI", &TargetProfile::DigitalCount},
    {"FL", &TargetProfile::CaudalCount},
    {"MB", &TargetProfile::ModbusCount},
    {"EX", &TargetProfile::ModuloCount},
    {"PB", &TargetProfile::OneWireCount},
}};

bool IsWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

/// The first channel in an equation that the model lacks; empty when there is none. What is no
/// token of a channel is the logger's own grammar, and is passed over.
std::string MissingChannel(std::string_view equation, const TargetProfile& model) {
  for (std::size_t at = 0; at < equation.size();) {
    const std::size_t start = at;
    while (at < equation.size() && IsWordCharacter(equation[at])) ++at;
    const std::string_view word = equation.substr(start, at - start);
    if (word.empty()) ++at;
    for (const auto& [token, count] : kNamedChannels) {
      if (!word.starts_with(token) || word.size() == token.size()) continue;
      const std::string_view digits = word.substr(token.size());
      if (digits.find_first_not_of("0123456789") != std::string_view::npos) continue;
      if (NumVal(digits) >= model.*count) return std::string(word);
    }
  }
  return {};
}

}  // namespace

std::vector<Finding> BrokenIdentities(const Examined& file) {
  std::vector<Finding> found;
  EachProbe(file, [&](int i, const ConfOneWire& probe) {
    // A logger takes either no octets at all, or eight.
    const bool isUnset = probe.ADDRESS1 == kUnsetHalf && probe.ADDRESS2 == kUnsetHalf;
    for (const auto& [word, half] :
         {std::pair{"ADDRESS1", &probe.ADDRESS1}, {"ADDRESS2", &probe.ADDRESS2}})
      if (OctetsOfHalf(*half).empty() || (*half == kUnsetHalf && !isUnset))
        found.push_back(AtField(Probes::kSection, i, word,
                                {"%1 is no half of an identity: write four numbers up to 255 with "
                                 "points between them",
                                 {*half}}));
  });
  return found;
}

std::vector<Finding> SharedIdentities(const Examined& file) {
  std::vector<Finding> found;
  std::map<std::pair<std::vector<int>, std::vector<int>>, int> first;
  EachProbe(file, [&](int i, const ConfOneWire& probe) {
    const std::pair identity(OctetsOfHalf(probe.ADDRESS1), OctetsOfHalf(probe.ADDRESS2));
    if (identity.first.empty() || identity.second.empty()) return;
    // Without an identity a probe is the only one on the bus.
    const auto none = OctetsOfHalf(kNoIdentity);
    if (identity == std::pair(none, none)) return;
    const auto [earlier, isNew] = first.emplace(identity, i);
    if (isNew) return;
    found.push_back(AtField(Probes::kSection, i, "ADDRESS1",
                            {"probe %1 has the same identity: read that of the other one",
                             {std::to_string(earlier->second)}}));
  });
  return found;
}

std::vector<Finding> EquationsOfMissingChannels(const Examined& file) {
  std::vector<Finding> found;
  for (int i = 0; i < file.Model().MathCount; ++i) {
    const ConfMath& math = file.Conf().Math[i];
    if (math.INTERFAZ == kInterfaceOff) continue;
    if (const std::string missing = MissingChannel(math.ECUACION, file.Model()); !missing.empty())
      found.push_back(AtField(
          MathChannels::kSection, i, "ECUACION",
          {"the %1 has no channel %2: name another one", {file.Model().TargetName, missing}}));
  }
  return found;
}

}  // namespace ostrel
