#pragma once

#include <cstdint>
#include <string>

#include "model/Describe.h"

namespace ostrel {

/// Where a logger reports to over a packet data connection. Times are seconds.
struct ConfGprs {
  std::string APN_SERVER, APN_PASS, APN_USER;
  std::int16_t APN_RETRIES = 0;
  std::int16_t APN_RETIME = 0;   ///< between attempts
  std::int16_t APN_TIMEOUT = 0;  ///< of disconnection
  Bool16 ALWAYS_CON;             ///< the connection stays up at all times
  std::string SERVER_IP;         ///< dotted, or "0" for none
  std::int32_t SERVER_PORT = 0;
  std::int16_t SERVER_TIMEOUT = 0;
  Bool16 ENABLED;
  std::string FTP_IP;  ///< dotted, or "0" for none
  std::string FTP_PATH, FTP_USER, FTP_PASS;
  std::int16_t FTP_RETRIES = 0;
  std::int16_t FTP_RETIME = 0;

  bool operator==(const ConfGprs&) const = default;
};

template <Is<ConfGprs> R, class Visit>
void Describe(R& r, Visit&& visit) {
  auto& [apnServer, apnPass, apnUser, apnRetries, apnRetime, apnTimeout, alwaysCon, serverIp,
         serverPort, serverTimeout, enabled, ftpIp, ftpPath, ftpUser, ftpPass, ftpRetries,
         ftpRetime] = r;
  visit(FieldMeta{"APN_SERVER", "APN"}, apnServer);
  visit(SecretMeta("APN_PASS", "APN password"), apnPass);
  visit(FieldMeta{"APN_USER", "APN user"}, apnUser);
  visit(NumberMeta("APN_RETRIES", "connection attempts", "", {.least = 0}), apnRetries);
  visit(NumberMeta("APN_RETIME", "time between attempts", "s", {.least = 0}), apnRetime);
  visit(NumberMeta("APN_TIMEOUT", "disconnection timeout", "s", {.least = 0}), apnTimeout);
  visit(FieldMeta{"SERVER_IP", "server address"}, serverIp);
  visit(NumberMeta("SERVER_PORT", "server port", "", {.least = 0, .most = 65'535}), serverPort);
  visit(NumberMeta("SERVER_TIMEOUT", "server timeout", "s", {.least = 0}), serverTimeout);
  visit(FieldMeta{"ALWAYS_CON", "connection kept up"}, alwaysCon);
  visit(FieldMeta{"ENABLED", "GPRS enabled"}, enabled);
  visit(FieldMeta{"FTP_IP", "FTP server address"}, ftpIp);
  visit(FieldMeta{"FTP_PATH", "FTP path"}, ftpPath);
  visit(FieldMeta{"FTP_USER", "FTP user"}, ftpUser);
  visit(SecretMeta("FTP_PASS", "FTP password"), ftpPass);
  visit(NumberMeta("FTP_RETRIES", "FTP attempts", "", {.least = 0}), ftpRetries);
  visit(NumberMeta("FTP_RETIME", "time between FTP attempts", "s", {.least = 0}), ftpRetime);
}

}  // namespace ostrel
