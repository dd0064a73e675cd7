#pragma once

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "blocks/PageId.h"
#include "blocks/Receiver.h"
#include "link/Statement.h"
#include "model/DeviceConf.h"

namespace ostrel {

// The fixed orders in which the parts of a configuration take part in the work on the whole. A page
// that this build does not have yet is passed over.

/// Emptying at the start of the program.
inline constexpr auto kClearAtStart = [] {
  using enum PageId;
  return std::array{Caudal,  CTimer, E_Analog,  E_Math,   E_Digital,   General,  Grupos,
                    LTimer,  WTimer, MTimer,    E_MODBUS, Macros,      GPRS,     Flags,
                    Katodex, E_Aux,  E_OneWire, Aut_Voz,  CONF_MODBUS, E_Modular};
}();

/// Emptying ahead of a download.
inline constexpr auto kClearAtDownload = [] {
  using enum PageId;
  return std::array{Caudal,  CTimer, E_Analog,  E_Math,   E_Digital,   General,    Grupos,
                    LTimer,  WTimer, MTimer,    E_MODBUS, Macros,      GPRS,       Flags,
                    Katodex, E_Aux,  E_OneWire, Aut_Voz,  CONF_MODBUS, SampleRate, E_Modular};
}();

/// Showing what was downloaded. The voice-call list is absent: it has a dialogue of its own.
inline constexpr auto kLoadAfterDownload = [] {
  using enum PageId;
  return std::array{Caudal,  CTimer, E_Analog,  E_Math,      E_Digital,  General,  Grupos,
                    LTimer,  WTimer, MTimer,    E_MODBUS,    Macros,     GPRS,     Flags,
                    Katodex, E_Aux,  E_OneWire, CONF_MODBUS, SampleRate, E_Modular};
}();

/// A page's turn in saving and restoring a file, on some models only.
struct FileTurn {
  PageId page;
  bool (*takesPart)(const TargetProfile& model) = [](const TargetProfile&) { return true; };
};

inline constexpr std::array<FileTurn, 19> kFileOrder{{
    {PageId::E_Analog},
    {PageId::Caudal},
    {PageId::E_Digital},
    {PageId::CTimer},
    {PageId::WTimer},
    {PageId::MTimer},
    {PageId::LTimer},
    {PageId::General},
    {PageId::Grupos},
    {PageId::E_MODBUS, [](const TargetProfile& model) { return model.IsVR200 || model.IsS100; }},
    {PageId::E_Modular, [](const TargetProfile& model) { return model.IsS100; }},
    {PageId::Macros},
    {PageId::GPRS},
    {PageId::Flags},
    {PageId::E_Math},
    {PageId::Aut_Voz},
    {PageId::CONF_MODBUS},
    {PageId::E_OneWire, [](const TargetProfile& model) { return model.IsKA2 || model.IsKA1; }},
    {PageId::SampleRate},
}};

/// One block of statements of an upload. It is made channel by channel.
struct UploadStep {
  std::string_view name;
  /// The pages whose fields it carries.
  std::vector<PageId> pages;
  /// How many channels it has for a logger: 1 for a block that stands once, 0 where the logger
  /// does not take it.
  int (*count)(const Receiver& receiver);
  /// Adds the statements of one channel.
  void (*compose)(const DeviceConf& conf, const Receiver& receiver, int channel,
                  StatementList& out);
};

/// Adds all statements of a step.
void ComposeStep(const UploadStep& step, const DeviceConf& conf, const Receiver& receiver,
                 StatementList& out);

/// The blocks of an upload in the order of sending.
std::span<const UploadStep> UploadOrder();

}  // namespace ostrel
