#pragma once

#include <array>
#include <string_view>

#include "model/TargetProfile.h"

namespace ostrel {

// The fixed orders in which pages take part in the work of the shell. A name that this build has no
// page for is passed over.

/// Emptying the model at the start of the program.
inline constexpr std::array<std::string_view, 20> kClearAtStart{
    "Caudal",  "CTimer", "E_Analog",  "E_Math",   "E_Digital",   "General",  "Grupos",
    "LTimer",  "WTimer", "MTimer",    "E_MODBUS", "Macros",      "GPRS",     "Flags",
    "Katodex", "E_Aux",  "E_OneWire", "Aut_Voz",  "CONF_MODBUS", "E_Modular"};

/// Emptying the model ahead of a download.
inline constexpr std::array<std::string_view, 21> kClearAtDownload{
    "Caudal",  "CTimer", "E_Analog",  "E_Math",   "E_Digital",   "General",    "Grupos",
    "LTimer",  "WTimer", "MTimer",    "E_MODBUS", "Macros",      "GPRS",       "Flags",
    "Katodex", "E_Aux",  "E_OneWire", "Aut_Voz",  "CONF_MODBUS", "SampleRate", "E_Modular"};

/// Showing a downloaded model. The voice-call list is absent: it has a dialogue of its own.
inline constexpr std::array<std::string_view, 20> kLoadAfterDownload{
    "Caudal",  "CTimer", "E_Analog",  "E_Math",      "E_Digital",  "General",  "Grupos",
    "LTimer",  "WTimer", "MTimer",    "E_MODBUS",    "Macros",     "GPRS",     "Flags",
    "Katodex", "E_Aux",  "E_OneWire", "CONF_MODBUS", "SampleRate", "E_Modular"};

/// A page's turn in saving and restoring a file, on some models only.
struct FileTurn {
  std::string_view page;
  bool (*takesPart)(const TargetProfile& model) = [](const TargetProfile&) { return true; };
};

inline constexpr std::array<FileTurn, 19> kFileOrder{{
    {"E_Analog"},
    {"Caudal"},
    {"E_Digital"},
    {"CTimer"},
    {"WTimer"},
    {"MTimer"},
    {"LTimer"},
    {"General"},
    {"Grupos"},
    {"E_MODBUS", [](const TargetProfile& model) { return model.IsVR200 || model.IsS100; }},
    {"E_Modular", [](const TargetProfile& model) { return model.IsS100; }},
    {"Macros"},
    {"GPRS"},
    {"Flags"},
    {"E_Math"},
    {"Aut_Voz"},
    {"CONF_MODBUS"},
    {"E_OneWire", [](const TargetProfile& model) { return model.IsKA2 || model.IsKA1; }},
    {"SampleRate"},
}};

/// The blocks of an upload. Each looks for itself whether model and firmware take it.
inline constexpr std::array<std::string_view, 22> kUploadOrder{
    "Identity",      "Resend rules",     "Sampling",       "Telephones",     "Long timers",
    "Cyclic timers", "Weekly timers",    "Monthly timers", "Digital inputs", "Analog inputs",
    "Flow meters",   "Analog groups",    "Flags",          "MODBUS bus",     "MODBUS channels",
    "1-Wire probes", "Expansion inputs", "Math channels",  "Macros",         "GPRS",
    "FTP",           "Auxiliary inputs"};

}  // namespace ostrel
