#include "sim/Model.h"

#include <algorithm>
#include <cstddef>

namespace ostrel::sim {
namespace {

constexpr std::uint32_t kCommon = kResendRules | kGprs | kFlagAlarms | kAnalogPersistence | kFtp |
                                  kMath | kNormallyClosed | kNoMaskIsMinusOne | kFastRefusal |
                                  kMonthlyTimers | kMissedCall | kExtendedMasks | kTotalRatio |
                                  kFlowInUnits;
constexpr std::uint32_t kWithModbus = kCommon | kModbusConstants | kModbusFormats | kModbusSlave;

constexpr ModelTraits kTraits[] = {
    {Model::KA1, "KA1", "Ostrel KA1", "OSTREL_KA1", 0, 8, 8, 0, 4, 6, 4, 4, 0, 310, kCommon},
    {Model::KA2, "KA2", "Ostrel KA2", "OSTREL_KA2", 0, 9, 8, 0, 4, 2, 4, 4, 0, 325, kCommon},
    {Model::VR200, "VR200", "Ostrel VR200", "VR200", 4, 8, 8, 32, 0, 4, 0, 4, 0, 412, kWithModbus},
    {Model::S100, "S100", "Ostrel S100", "OSTREL_S100", 2, 2, 2, 0, 0, 1, 0, 4, 96, 208, kCommon},
    {Model::BP, "BP", "Tavro BP", "TAVRO", 4, 8, 8, 0, 0, 4, 0, 4, 0, 356, kCommon},
    {Model::BQ, "BQ", "Tavro BQ", "TAVRO_BQ", 1, 4, 2, 0, 0, 2, 0, 4, 0, 221,
     kCommon | kSampleRate},
};

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool SameLetters(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, Upper, Upper);
}

}  // namespace

const ModelTraits& TraitsOf(Model model) { return kTraits[static_cast<std::size_t>(model)]; }

std::optional<Model> ParseModel(std::string_view text) {
  for (const ModelTraits& traits : kTraits) {
    if (SameLetters(text, traits.word) || SameLetters(text, traits.displayName) ||
        SameLetters(text, traits.typeWord))
      return traits.model;
  }
  return std::nullopt;
}

}  // namespace ostrel::sim
