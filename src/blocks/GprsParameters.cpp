#include "blocks/GprsParameters.h"

namespace ostrel {
namespace {

constexpr std::string_view kNoAddress = "0";

void ComposeApn(const ConfGprs& gprs, StatementList& out) {
  out.Add(Statement("APNSERVER=").Text(gprs.APN_SERVER));
  out.Add(Statement("APNPASS=").Text(gprs.APN_PASS));
  out.Add(Statement("APNUSER=").Text(gprs.APN_USER));
  out.Add(Statement("").Num("APNRETRIES=", gprs.APN_RETRIES));
  out.Add(Statement("").Num("APNRETRYTIME=", gprs.APN_RETIME));
  out.Add(Statement("").Num("APNTIMEOUT=", gprs.APN_TIMEOUT));
  out.Add(Statement("APNALCON=").Digits(gprs.ALWAYS_CON ? 1 : 0));
}

void ComposeServer(const ConfGprs& gprs, StatementList& out) {
  out.Add(Statement("SERVERIP=").Text(gprs.SERVER_IP));
  out.Add(Statement("").Num("SERVERPORT=", gprs.SERVER_PORT));
  out.Add(Statement("").Num("SERVERTIMEOUT=", gprs.SERVER_TIMEOUT));
  out.Add(Statement(gprs.ENABLED ? "GPRSEN" : "GPRSDIS"));
}

void ComposeFtp(const ConfGprs& gprs, StatementList& out) {
  out.Add(Statement("FTPIP=").Text(gprs.FTP_IP));
  out.Add(Statement("FTPPATH=").Text(gprs.FTP_PATH));
  out.Add(Statement("FTPUSER=").Text(gprs.FTP_USER));
  out.Add(Statement("FTPPASS=").Text(gprs.FTP_PASS));
  out.Add(Statement("").Num("FTPRETRIES=", gprs.FTP_RETRIES));
  out.Add(Statement("").Num("FTPRETRYTIME=", gprs.FTP_RETIME));
}

}  // namespace

void GprsParameters::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  conf.Gprs = {};
  conf.Gprs.APN_RETRIES = conf.Gprs.FTP_RETRIES = 10;
  conf.Gprs.APN_RETIME = conf.Gprs.FTP_RETIME = 60;
  conf.Gprs.APN_TIMEOUT = 120;
  conf.Gprs.SERVER_TIMEOUT = 300;
  conf.Gprs.SERVER_IP = conf.Gprs.FTP_IP = kNoAddress;
}

const std::array<LineSection, 1> GprsParameters::kLines{{
    {"GPRS",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       ConfGprs& gprs = conf.Gprs;
       line.Into(gprs.APN_SERVER);
       line.Into(gprs.APN_PASS);
       line.Into(gprs.APN_USER);
       line.Into(gprs.APN_RETRIES);
       line.Into(gprs.APN_RETIME);
       line.Into(gprs.APN_TIMEOUT);
       gprs.ALWAYS_CON = Bool16(line.Number() != 0);
       line.Into(gprs.SERVER_IP);
       line.Into(gprs.SERVER_PORT);
       line.Into(gprs.SERVER_TIMEOUT);
       gprs.ENABLED = Bool16(line.Number() != 0);
       // A logger without FTP ends here: what it does not tell is empty and 0.
       line.Into(gprs.FTP_IP);
       line.Into(gprs.FTP_PATH);
       line.Into(gprs.FTP_USER);
       line.Into(gprs.FTP_PASS);
       line.Into(gprs.FTP_RETRIES);
       line.Into(gprs.FTP_RETIME);
     }},
}};

void GprsParameters::Compose(const DeviceConf& conf, const Receiver& receiver, int,
                             StatementList& out) {
  ComposeApn(conf.Gprs, out);
  ComposeServer(conf.Gprs, out);
  if (receiver.Has(Feature::Ftp)) ComposeFtp(conf.Gprs, out);
}

}  // namespace ostrel
