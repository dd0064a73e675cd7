#include "sim/blocks/Probes.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "sim/blocks/Block.h"
#include "sim/wire/AlarmStatement.h"
#include "sim/wire/NumberText.h"

namespace ostrel::sim {
namespace {

constexpr int kMostOctet = 255;
constexpr std::size_t kOctetDigits = 3;

Probe& ProbeOf(const Work& w) { return w.Channel(w.conf.probes, w.self.Traits().probes); }

/// Numbers of up to three digits with points between them; empty when there is anything else.
std::vector<int> DottedOctets(std::string_view text) {
  std::vector<int> octets;
  while (true) {
    const std::string_view digits = text.substr(0, text.find('.'));
    int octet = 0;
    const auto parsed = std::from_chars(digits.data(), digits.data() + digits.size(), octet);
    const bool whole = parsed.ec == std::errc{} && parsed.ptr == digits.data() + digits.size();
    if (!whole || digits.size() > kOctetDigits || octet < 0 || octet > kMostOctet) return {};
    octets.push_back(octet);
    if (digits.size() == text.size()) return octets;
    text.remove_prefix(digits.size() + 1);
  }
}

ProbeIdentity ReadIdentity(StatementCursor& in) {
  ProbeIdentity identity{};
  const std::vector<int> octets = DottedOctets(in.Rest().substr(0, in.Rest().find(',')));
  // Of an identity that was never set, each half is a single zero.
  const bool unset = octets == std::vector<int>{0, 0};
  if (octets.size() != identity.size() && !unset) in.Fail("identity of eight octets expected");
  in.Text();
  if (!in.Failed()) std::ranges::copy(octets, identity.begin());
  return identity;
}

void SetUpProbe(const Work& w) {
  Probe& probe = ProbeOf(w);
  w.SetNames(probe);
  w.in.Expect(",ONEWADD=");
  probe.identity = ReadIdentity(w.in);
  // Without a word for the kind, the one in force stays.
  if (w.in.HasToken(",1WTEMP"))
    probe.kind = ProbeKind::Temperature;
  else if (w.in.HasToken(",1WHUM"))
    probe.kind = ProbeKind::Humidity;
  w.in.End();
}

struct Probes {
  static constexpr StatementRule kRules[] = {
      {"ONEWCONF", SetUpProbe},
      {"DISONEW", [](const Work& w) { Disable(w.in, ProbeOf(w)); }},
      {"+ALMOW", [](const Work& w) { ReadLevelAlarm(w.in, ProbeOf(w).alarms); }},
      {"-ALMOW", [](const Work& w) { RemoveAlarm(w.in, ProbeOf(w).alarms); }},
  };

  static bool Stands(const Identity& self) { return self.Traits().probes > 0; }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    for (int i = 0; i < self.Traits().probes; ++i) {
      const Probe& probe = conf.probes[static_cast<std::size_t>(i)];
      out.Start("ONEWIRE").Add(i).Add(probe.name).Add(probe.unit);
      out.Add(static_cast<int>(probe.kind)).Add(IdentityText(probe.identity));
      out.LevelAlarms("ONEWIRE", i, probe.alarms);
    }
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    constexpr ProbeKind kKinds[] = {ProbeKind::Temperature, ProbeKind::Humidity};
    for (int i = 0; i < make.Self().Traits().probes; ++i) {
      Probe& probe = conf.probes[static_cast<std::size_t>(i)];
      if (make.Wanted()) {
        probe.name = make.Text(19);
        probe.unit = make.Unit();
        probe.kind = make.Pick(kKinds);
        if (make.Chance(0.7)) {
          for (int& octet : probe.identity) octet = make.Between(0, kMostOctet);
        }
      }
      make.LevelAlarms(probe.alarms);
    }
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll(
        {"ONEWCONF0=Temperatura agua,UNIT=\xB0"
         "C,ONEWADD=040.113.000.000.000.000.000.011,1WTEMP",
         "ONEWCONF1=Humedad caseta,UNIT=%,ONEWADD=038.007.021.000.000.000.000.129,1WHUM",
         "+ALMOW0=Riesgo de helada,INDEX= 0,MAX= 30,MIN= 2,HIST= .5,P= 2,SREST,EQ= 0,"
         "ACTHI=,ACTLO= 80,ACTNOM= 80"});
  }

  static void Visit(auto& conf, auto& visit) {
    VisitEach("probe", conf.probes, visit, [&](const std::string& prefix, auto& probe) {
      visit(prefix + "name", probe.name);
      visit(prefix + "unit", probe.unit);
      visit(prefix + "kind", probe.kind, ProbeKind::Humidity);
      visit(prefix + "identity", probe.identity);
      VisitAlarms(prefix, probe.alarms, visit);
    });
  }
};

}  // namespace

std::string IdentityText(const ProbeIdentity& identity) {
  std::string text;
  for (const int octet : identity) {
    if (!text.empty()) text += ',';
    AppendPadded(text, octet, kOctetDigits);
  }
  return text;
}

constinit const Block kProbeBlock = MakeBlock<Probes>();

}  // namespace ostrel::sim
