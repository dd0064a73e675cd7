#pragma once

#include <cstdint>
#include <string_view>

#include "controls/Form.h"
#include "tools/ToolContext.h"

namespace ostrel {

/// What tells the counters of the logger itself from those of its expansion modules.
struct CounterKind {
  std::string_view form;
  LinkResult (Comms::*set)(std::int16_t index, std::int32_t value);
  bool hasTotals;  ///< a logger tells their present totals
};

inline constexpr CounterKind kMainCounters{"SetTotal", &Comms::SetTotalCNT, true};
inline constexpr CounterKind kExpansionCounters{"ExpSetTotal", &Comms::SetExpValue, false};

/// Sets the running total of a counter inside the logger, for instance to align it with a
/// mechanical meter.
class SetTotal {
 public:
  SetTotal(ToolContext& context, const CounterKind& kind);

  Form& GetForm() { return form_; }
  /// Chooses the counter, and shows its total as it was read last where there is one.
  void SetIndex(std::int16_t index);
  /// Shows the dialog until it closes, and in a session refreshes the totals in it.
  void ShowModal();

 private:
  void Form_Load();
  void Refresh();
  void Update();
  void Write();
  void ShowPresent();
  void SetState(std::string_view text);

  ToolContext& context_;
  const CounterKind& kind_;
  Form form_;
  Label Titulo, LabelActual, LabelPreValue, LabelNuevo;
  TextBox TextNew;
  Label LabelEstado;
  Button OKButton, CancelButton;
  std::int16_t index_ = 0;
};

}  // namespace ostrel
