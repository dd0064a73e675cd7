#pragma once

#include <cstdint>
#include <string>

#include "platform/DateTime.h"
#include "platform/Time.h"
#include "sim/Faults.h"
#include "sim/Model.h"
#include "sim/Modem.h"
#include "sim/blocks/Probes.h"
#include "sim/fixture/Fixture.h"

namespace ostrel::sim {

/// How a simulated logger is made; `MakeDefaultOptions` fills in what suits a model.
struct LoggerOptions {
  Model model = Model::VR200;
  int version = 0;  ///< firmware, in hundredths
  std::uint32_t features = 0;
  std::string serial{};
  int battery = 360;       ///< its voltage in hundredths, to which the seed adds a little
  std::uint64_t seed = 1;  ///< of live values and faults
  DateTime clockStart{2026, 1, 15, 8, 30, 5};            ///< its clock when it is made ...
  std::int64_t clockOffsetSeconds = 0;                   ///< ... and what is added to that
  Duration replyDelay = std::chrono::milliseconds{2};    ///< from a request to its answer
  Duration eraseTime = std::chrono::milliseconds{1500};  ///< to empty the voice list
  Duration flashEraseTime = std::chrono::seconds{4};     ///< ahead of an image
  Duration flashCopyTime = std::chrono::seconds{8};      ///< to write an image and start anew
  FixtureScript fixture{};                               ///< that it is tested in
  ProbeIdentity probe{40, 113, 0, 0, 0, 0, 0, 11};       ///< that hangs on the bus
  bool modem = false;                                    ///< behind a modem instead of a cable
  std::string accessCode = "1234";                       ///< asked for in a data call
  ModemOptions modemOptions{};
  Faults faults{};
};

LoggerOptions MakeDefaultOptions(Model model);

}  // namespace ostrel::sim
