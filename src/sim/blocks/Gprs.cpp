#include "sim/blocks/Gprs.h"

#include "sim/blocks/Block.h"

namespace ostrel::sim {
namespace {

constexpr int kMostPort = 65'535;

template <std::string GprsSettings::*text>
void SetGprsText(const Work& w) {
  w.SetText(w.conf.gprs.*text);
}

template <int GprsSettings::*number, int last = kMost16>
void SetGprsNumber(const Work& w) {
  w.SetWhole(w.conf.gprs.*number, last);
}

template <bool value>
void SwitchGprs(const Work& w) {
  w.conf.gprs.on = value;
  w.in.End();
}

void SetAlwaysConnected(const Work& w) {
  w.in.Expect("=");
  w.conf.gprs.alwaysConnected = w.in.Plain(0, 1) == 1;
  w.in.End();
}

struct Gprs {
  using Settings = GprsSettings;

  static constexpr StatementRule kRules[] = {
      {"APNSERVER", SetGprsText<&Settings::apn>},
      {"APNPASS", SetGprsText<&Settings::apnPassword>},
      {"APNUSER", SetGprsText<&Settings::apnUser>},
      {"APNRETRIES", SetGprsNumber<&Settings::apnRetries>},
      {"APNRETRYTIME", SetGprsNumber<&Settings::apnRetryTime>},
      {"APNTIMEOUT", SetGprsNumber<&Settings::apnTimeout>},
      {"APNALCON", SetAlwaysConnected},
      {"SERVERIP", SetGprsText<&Settings::server>},
      {"SERVERPORT", SetGprsNumber<&Settings::serverPort, kMostPort>},
      {"SERVERTIMEOUT", SetGprsNumber<&Settings::serverTimeout>},
      {"GPRSEN", SwitchGprs<true>},
      {"GPRSDIS", SwitchGprs<false>},
      {"FTPIP", SetGprsText<&Settings::ftpServer>, kFtp},
      {"FTPPATH", SetGprsText<&Settings::ftpPath>, kFtp},
      {"FTPUSER", SetGprsText<&Settings::ftpUser>, kFtp},
      {"FTPPASS", SetGprsText<&Settings::ftpPassword>, kFtp},
      {"FTPRETRIES", SetGprsNumber<&Settings::ftpRetries>, kFtp},
      {"FTPRETRYTIME", SetGprsNumber<&Settings::ftpRetryTime>, kFtp},
  };

  static bool Stands(const Identity& self) { return self.Has(kGprs); }

  static void Tell(const Configuration& conf, const Identity& self, Report& out) {
    const GprsSettings& gprs = conf.gprs;
    out.Start("GPRS").Add(gprs.apn).Add(gprs.apnPassword).Add(gprs.apnUser);
    out.Add(gprs.apnRetries).Add(gprs.apnRetryTime).Add(gprs.apnTimeout);
    out.Add(gprs.alwaysConnected ? 1 : 0);
    out.Add(gprs.server).Add(gprs.serverPort).Add(gprs.serverTimeout).Add(gprs.on ? 1 : 0);
    if (!self.Has(kFtp)) return;
    out.Add(gprs.ftpServer).Add(gprs.ftpPath).Add(gprs.ftpUser).Add(gprs.ftpPassword);
    out.Add(gprs.ftpRetries).Add(gprs.ftpRetryTime);
  }

  static void MakeUp(RandomParts& make, Configuration& conf) {
    const auto address = [&make] {
      return "10." + std::to_string(make.Between(0, 255)) + ".7." +
             std::to_string(make.Between(1, 254));
    };
    GprsSettings& gprs = conf.gprs;
    if (make.Wanted()) {
      gprs.apn = make.Text(30);
      gprs.apnPassword = make.Text(12);
      gprs.apnUser = make.Text(12);
      gprs.apnRetries = make.Between(0, 999);
      gprs.apnRetryTime = make.Between(0, kMost16);
      gprs.apnTimeout = make.Between(0, kMost16);
      gprs.alwaysConnected = make.Chance(0.5);
      gprs.server = address();
      gprs.serverPort = make.Between(0, kMostPort);
      gprs.serverTimeout = make.Between(0, kMost16);
      gprs.on = make.Chance(0.5);
    }
    if (!make.Self().Has(kFtp) || !make.Wanted()) return;
    gprs.ftpServer = address();
    gprs.ftpPath = "/datos/" + std::to_string(make.Between(0, 999));
    gprs.ftpUser = make.Text(12);
    gprs.ftpPassword = make.Text(12);
    gprs.ftpRetries = make.Between(0, 999);
    gprs.ftpRetryTime = make.Between(0, kMost16);
  }

  static void Demonstrate(Demonstration& demo) {
    demo.SayAll({"APNSERVER=telemetria.example", "APNPASS=clave", "APNUSER=pinar", "APNRETRIES= 5",
                 "APNALCON=0", "SERVERIP=192.0.2.10", "SERVERPORT= 2020", "GPRSEN",
                 "FTPIP=192.0.2.11", "FTPPATH=/pinar", "FTPUSER=pinar", "FTPPASS=clave"});
  }

  static void Visit(auto& conf, auto& visit) {
    auto& gprs = conf.gprs;
    visit("gprs.apn", gprs.apn);
    visit("gprs.apn-password", gprs.apnPassword);
    visit("gprs.apn-user", gprs.apnUser);
    visit("gprs.apn-retries", gprs.apnRetries);
    visit("gprs.apn-retry-time", gprs.apnRetryTime);
    visit("gprs.apn-timeout", gprs.apnTimeout);
    visit("gprs.always-connected", gprs.alwaysConnected);
    visit("gprs.server", gprs.server, "0");
    visit("gprs.server-port", gprs.serverPort);
    visit("gprs.server-timeout", gprs.serverTimeout);
    visit("gprs.on", gprs.on);
    visit("ftp.server", gprs.ftpServer, "0");
    visit("ftp.path", gprs.ftpPath);
    visit("ftp.user", gprs.ftpUser);
    visit("ftp.password", gprs.ftpPassword);
    visit("ftp.retries", gprs.ftpRetries);
    visit("ftp.retry-time", gprs.ftpRetryTime);
  }
};

}  // namespace

constinit const Block kGprsBlock = MakeBlock<Gprs>();

}  // namespace ostrel::sim
