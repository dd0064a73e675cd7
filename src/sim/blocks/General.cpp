#include "sim/blocks/General.h"

#include <string>

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

struct General {
  static constexpr StatementRule kRules[] = {
      {"ID", [](const Work& w) { w.SetText(w.conf.name); }},
      {"CSM", [](const Work& w) { w.SetText(w.conf.smsCentre); }},
      {"PTLF", [](const Work& w) { w.SetText(w.conf.ownNumber); }},
      {"REST", [](const Work& w) { w.SetText(w.conf.restoredText); }},
      {"RETRYMAX", [](const Work& w) { w.SetWhole(w.conf.resendCount, kMost16); }, kResendRules},
      {"RETRYTIME", [](const Work& w) { w.SetWhole(w.conf.resendSeconds, kMost32); }, kResendRules},
  };

  static bool Stands(const Identity&) { return true; }

  static void Tell(const Configuration& conf, const Identity&, Report& out) {
    out.Start("DNAME").Add(conf.name);
    out.Start("SMC").Add(conf.smsCentre);
    out.Start("PTLF").Add(conf.ownNumber);
    out.Start("RENVT").Add(conf.resendSeconds);
    out.Start("RENVN").Add(conf.resendCount);
    out.Start("REST").Add(conf.restoredText);
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    conf.name = make.Text(50);
    conf.smsCentre = make.PhoneNumber();
    conf.ownNumber = make.PhoneNumber();
    conf.restoredText = make.Text(19);
    conf.resendSeconds = 60 * make.Between(0, 999);
    conf.resendCount = make.Between(0, 999);
  }

  static void Demonstrate(Demonstration& demo) {
    demo.Say("ID=Bombeo El Pinar (" + std::string(demo.Self().Traits().displayName) + ")");
    demo.SayAll({"CSM=+34609090909", "PTLF=+34600123456", "REST=(normalizado)", "RETRYMAX= 3",
                 "RETRYTIME= 600"});
  }

  static void Visit(auto& conf, auto& visit) {
    visit("name", conf.name);
    visit("sms-centre", conf.smsCentre);
    visit("own-number", conf.ownNumber);
    visit("restored-text", conf.restoredText);
    visit("resend-seconds", conf.resendSeconds);
    visit("resend-count", conf.resendCount);
  }
};

}  // namespace

constinit const Block kGeneralBlock = MakeBlock<General>();

}  // namespace ostrel::sim
