#pragma once

#include <string>

namespace ostrel::sim {

struct Block;

/// Where a logger reports to. Times are seconds.
struct GprsSettings {
  std::string apn;
  std::string apnPassword;
  std::string apnUser;
  int apnRetries = 10;
  int apnRetryTime = 60;
  int apnTimeout = 120;
  bool alwaysConnected = false;
  std::string server = "0";
  int serverPort = 0;
  int serverTimeout = 300;
  bool on = false;
  std::string ftpServer = "0";
  std::string ftpPath;
  std::string ftpUser;
  std::string ftpPassword;
  int ftpRetries = 10;
  int ftpRetryTime = 60;

  bool operator==(const GprsSettings&) const = default;
};

extern const Block kGprsBlock;

}  // namespace ostrel::sim
