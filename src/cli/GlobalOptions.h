#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "lang/Lang.h"

namespace ostrel::cli {

/// The options that every command takes.
struct GlobalOptions {
  std::string port;         ///< "COM7", the path of a device, or "sim:VR200"
  std::string target;       ///< a model by any of its names
  std::string phone;        ///< to be dialled by the modem at the port
  std::string code;         ///< access code
  std::string codeFile;     ///< file whose first line is the access code
  int codeDescriptor = -1;  ///< open descriptor whose first line is the access code
  std::string trace;        ///< file that gets what passes on the line
  std::string record;       ///< file that gets every octet both ways
  std::string words;        ///< the command line, without what says where and who
  std::string simState;     ///< file in which a simulated logger is kept
  std::int16_t lang = kSpanishColumn;
  std::optional<std::int32_t> features;
  bool json = false;
  bool quiet = false;
  bool yes = false;
  bool secrets = false;  ///< passwords are shown
};

}  // namespace ostrel::cli
