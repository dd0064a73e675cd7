#pragma once

#include <QString>
#include <functional>

#include "desktop/forms/FormView.h"
#include "desktop/forms/Guard.h"

namespace ostrel {

/// What layouts get from the window.
struct LayoutContext {
  Guard guard;
  /// How a row of the port list reads, with the device behind the number.
  std::function<QString(const ListRow&)> portText;
  /// How a row reads that is a word of the product, in the language in use.
  std::function<QString(const ListRow&)> wordText;
};

/// Property of a part of a page that a reading empties and fills, where the rest of it stays in
/// use.
inline constexpr const char* kCoveredInReading = "coveredInReading";

/// Draws any form of the program. One that has no layout is drawn from its controls in order.
FormView* MakeView(Form& form, const LayoutContext& context, QWidget* parent = nullptr);

// One layout a form, each in a file of its own. They put the widgets of all controls into `view`.
/// The layout of forms that have none of their own.
void LayOutInOrder(FormView& view);
void LayOutGeneral(FormView& view, const LayoutContext& context);
void LayOutDigital(FormView& view);
void LayOutAnalog(FormView& view);
void LayOutGrupos(FormView& view);
void LayOutFlags(FormView& view);
void LayOutCaudal(FormView& view);
void LayOutSampleRate(FormView& view);
void LayOutOneWire(FormView& view);
void LayOutMath(FormView& view);
void LayOutSetTotal(FormView& view);
void LayOutPulseCalculator(FormView& view);
void LayOutMaskCalculator(FormView& view);
void LayOutModbusBus(FormView& view);
void LayOutModbusChannel(FormView& view);
void LayOutExpansion(FormView& view);
void LayOutAux(FormView& view);
void LayOutKatodex(FormView& view);
void LayOutCyclicTimers(FormView& view);
void LayOutLongTimers(FormView& view);
void LayOutWeeklyTimers(FormView& view);
void LayOutMonthlyTimers(FormView& view);
void LayOutMacros(FormView& view);
void LayOutGprs(FormView& view);
void LayOutVoice(FormView& view);
void LayOutActEdit(FormView& view);
void LayOutPWForm(FormView& view);
void LayOutLang(FormView& view);
void LayOutTargetSelect(FormView& view);
void LayOutMonitor(FormView& view);
void LayOutCathodicMonitor(FormView& view);
void LayOutFirm(FormView& view);
void LayOutTerminal(FormView& view);

}  // namespace ostrel
