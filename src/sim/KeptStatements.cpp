#include "sim/KeptStatements.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace ostrel::sim {
namespace {

/// A kind of statement: statements of the same slot replace each other.
struct Family {
  std::string_view word;
  std::string_view slot;
  int count;               ///< how many there are; 0 where they bear no number
  std::uint32_t features;  ///< what the firmware needs for it
};

constexpr int kMacros = 56;

constexpr Family kFamilies[] = {
    {"LT", "LT", 16, 0},
    {"-LT", "LT", 16, 0},
    {"CT", "CT", 16, 0},
    {"-CT", "CT", 16, 0},
    {"WT", "WT", 16, 0},
    {"-WT", "WT", 16, 0},
    {"MT", "MT", 16, kMonthlyTimers},
    {"-MT", "MT", 16, kMonthlyTimers},
    {"FLOWCONF", "FLOWCONF", 9, 0},
    {"TOTALRATIO", "TOTALRATIO", 9, kTotalRatio},
    {"+ALMFLOW", "ALMFLOW", 9, 0},
    {"-ALMFLOW", "ALMFLOW", 9, 0},
    {"BAUD", "BAUD", 0, 0},
    {"MBSLAVE", "MBSLAVE", 0, kModbusSlave},
    {"MBSLAVEADD", "MBSLAVEADD", 0, kModbusSlave},
    {"MBCONF", "MBCONF", 32, 0},
    {"DISMB", "MBCONF", 32, 0},
    {"+ALMMB", "ALMMB", 32, 0},
    {"-ALMMB", "ALMMB", 32, 0},
    {"ONEWCONF", "ONEWCONF", 4, 0},
    {"DISONEW", "ONEWCONF", 4, 0},
    {"+ALMOW", "ALMOW", 4, 0},
    {"-ALMOW", "ALMOW", 4, 0},
    {"DISEXPINPUT", "EXPINPUT", 96, 0},
    {"EXPINPUTDCONF", "EXPINPUT", 96, 0},
    {"EXPINPUTQCONF", "EXPINPUT", 96, 0},
    {"EXPINPUTCCONF", "EXPINPUT", 96, 0},
    {"EXPINPUTACONF", "EXPINPUT", 96, 0},
    {"+ALMEXPINPUTD", "ALMEXPINPUT", 96, 0},
    {"-ALMEXPINPUTD", "ALMEXPINPUT", 96, 0},
    {"+ALMEXPINPUTQ", "ALMEXPINPUT", 96, 0},
    {"-ALMEXPINPUTQ", "ALMEXPINPUT", 96, 0},
    {"+ALMEXPINPUTA", "ALMEXPINPUT", 96, 0},
    {"-ALMEXPINPUTA", "ALMEXPINPUT", 96, 0},
    {"MCCONF", "MCCONF", 8, kMath},
    {"DISMC", "MCCONF", 8, kMath},
    {"+ALMM", "ALMM", 8, kMath},
    {"-ALMM", "ALMM", 8, kMath},
    {"APNSERVER", "APNSERVER", 0, kGprs},
    {"APNPASS", "APNPASS", 0, kGprs},
    {"APNUSER", "APNUSER", 0, kGprs},
    {"APNRETRIES", "APNRETRIES", 0, kGprs},
    {"APNRETRYTIME", "APNRETRYTIME", 0, kGprs},
    {"APNTIMEOUT", "APNTIMEOUT", 0, kGprs},
    {"APNALCON", "APNALCON", 0, kGprs},
    {"SERVERIP", "SERVERIP", 0, kGprs},
    {"SERVERPORT", "SERVERPORT", 0, kGprs},
    {"SERVERTIMEOUT", "SERVERTIMEOUT", 0, kGprs},
    {"GPRSEN", "GPRS", 0, kGprs},
    {"GPRSDIS", "GPRS", 0, kGprs},
    {"FTPIP", "FTPIP", 0, kGprs | kFtp},
    {"FTPPATH", "FTPPATH", 0, kGprs | kFtp},
    {"FTPUSER", "FTPUSER", 0, kGprs | kFtp},
    {"FTPPASS", "FTPPASS", 0, kGprs | kFtp},
    {"FTPRETRIES", "FTPRETRIES", 0, kGprs | kFtp},
    {"FTPRETRYTIME", "FTPRETRYTIME", 0, kGprs | kFtp},
    {"AUXCONF", "AUXCONF", 4, 0},
    {"DISAUX", "AUXCONF", 4, 0},
    {"+ALMAUX", "ALMAUX", 4, 0},
    {"-ALMAUX", "ALMAUX", 4, 0},
};

/// The alarm number in a statement, as a part of its slot: "/2"; empty where there is none.
std::string AlarmPart(std::string_view rest) {
  constexpr std::string_view kIndex = ",INDEX= ";
  const std::size_t at = rest.find(kIndex);
  if (at == std::string_view::npos || at + kIndex.size() >= rest.size()) return {};
  return std::string("/") + rest[at + kIndex.size()];
}

bool KeepMacro(std::string_view word, std::string_view statement, StatementCursor& in,
               Configuration& conf) {
  if (word == "CLEARMACRO") {
    in.End();
    conf.macros.clear();
    return true;
  }
  if (word != "MACRO" && word != "F") return false;
  in.Plain(0, word == "F" ? kFlags - 1 : kMacros - 1);
  in.Expect("={");
  if (!in.Failed() && !statement.ends_with('}')) in.Fail("closing brace missing");
  conf.macros.emplace_back(statement);
  return true;
}

}  // namespace

bool KeepStatement(std::string_view word, std::string_view statement, StatementCursor& in,
                   const Identity& self, Configuration& conf) {
  if (KeepMacro(word, statement, in, conf)) return true;
  const auto* family = std::ranges::find(kFamilies, word, &Family::word);
  if (family == std::ranges::end(kFamilies)) return false;
  if (!self.Has(family->features)) in.Fail("unknown to this firmware");
  std::string slot(family->slot);
  if (family->count > 0) slot += std::to_string(in.Plain(0, family->count - 1));
  if (!in.Rest().empty() && in.Rest().front() != ',') in.Expect("=");
  if (!in.Failed()) conf.kept[slot + AlarmPart(in.Rest())] = statement;
  return true;
}

NameAndUnit NameOfKept(const Configuration& conf, const std::string& slot) {
  const auto found = conf.kept.find(slot);
  if (found == conf.kept.end()) return {};
  const std::string_view text = found->second;
  const auto tokenBehind = [text](std::string_view lead) -> std::string {
    const std::size_t at = text.find(lead);
    if (at == std::string_view::npos) return {};
    const std::string_view rest = text.substr(at + lead.size());
    return std::string(rest.substr(0, rest.find(',')));
  };
  return {tokenBehind("="), tokenBehind(",UNIT=")};
}

}  // namespace ostrel::sim
