#pragma once

#include <string>
#include <vector>

namespace ostrel {

/// What a machine tells of a port without opening it.
struct PortFacts {
  /// Another program that has the device open.
  struct Holder {
    int process = 0;
    std::string name;
  };

  std::string device{};  ///< path; empty where the number leads to nothing on this machine
  bool exists = false;
  bool isPermitted = false;       ///< the user may read and write it
  std::string group{};            ///< whose members may; empty where the device lets no group
  std::vector<Holder> holders{};  ///< as far as the user may know
};

/// Tells the facts of a port number; injected because a test has no such devices.
class PortInspector {
 public:
  virtual ~PortInspector() = default;
  virtual PortFacts Inspect(int number) = 0;
};

/// Where nothing is known of any port but what its opening tells.
class BlindInspector final : public PortInspector {
 public:
  PortFacts Inspect(int) override { return {}; }
};

}  // namespace ostrel
