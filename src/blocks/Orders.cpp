#include "blocks/Orders.h"

#include "blocks/GeneralParameters.h"
#include "blocks/GprsParameters.h"
#include "blocks/MacroPool.h"
#include "blocks/bus/ModbusBus.h"
#include "blocks/bus/ModbusChannels.h"
#include "blocks/expansion/ExpansionInputs.h"
#include "blocks/inputs/AnalogInputs.h"
#include "blocks/inputs/AuxiliaryInputs.h"
#include "blocks/inputs/DigitalInputs.h"
#include "blocks/inputs/FlagAlarms.h"
#include "blocks/inputs/FlowMeters.h"
#include "blocks/inputs/MathChannels.h"
#include "blocks/inputs/Probes.h"
#include "blocks/inputs/Sampling.h"
#include "blocks/timers/CyclicTimers.h"
#include "blocks/timers/LongTimers.h"
#include "blocks/timers/MonthlyTimers.h"
#include "blocks/timers/WeeklyTimers.h"

namespace ostrel {
namespace {

int Once(const Receiver&) { return 1; }

template <Feature kFeature>
int OnceWith(const Receiver& receiver) {
  return receiver.Has(kFeature) ? 1 : 0;
}

template <class Kind>
UploadStep StepOf(std::string_view name, PageId page) {
  return {name, {page}, &Kind::Count, &Kind::Compose};
}

}  // namespace

void ComposeStep(const UploadStep& step, const DeviceConf& conf, const Receiver& receiver,
                 StatementList& out) {
  for (int channel = 0; channel < step.count(receiver); ++channel)
    step.compose(conf, receiver, channel, out);
}

std::span<const UploadStep> UploadOrder() {
  using enum PageId;
  static const std::array steps{
      UploadStep{"Identity", {General}, Once, &GeneralParameters::ComposeIdentity},
      UploadStep{"Resend rules",
                 {General},
                 OnceWith<Feature::RetryRules>,
                 &GeneralParameters::ComposeResendRules},
      StepOf<Sampling>("Sampling", SampleRate),
      UploadStep{"Telephones", {General}, Once, &GeneralParameters::ComposeTelephones},
      StepOf<LongTimers>("Long timers", LTimer),
      StepOf<CyclicTimers>("Cyclic timers", CTimer),
      StepOf<WeeklyTimers>("Weekly timers", WTimer),
      StepOf<MonthlyTimers>("Monthly timers", MTimer),
      StepOf<DigitalInputs>("Digital inputs", E_Digital),
      StepOf<AnalogInputs>("Analog inputs", E_Analog),
      // A meter's statements carry its weight in the totaliser, too.
      UploadStep{"Flow meters", {Caudal, SampleRate}, &FlowMeters::Count, &FlowMeters::Compose},
      StepOf<AnalogGroups>("Analog groups", Grupos),
      StepOf<FlagAlarms>("Flags", Flags),
      StepOf<ModbusBus>("MODBUS bus", CONF_MODBUS),
      StepOf<ModbusChannels>("MODBUS channels", E_MODBUS),
      StepOf<Probes>("1-Wire probes", E_OneWire),
      StepOf<ExpansionInputs>("Expansion inputs", E_Modular),
      StepOf<MathChannels>("Math channels", E_Math),
      StepOf<MacroPool>("Macros", Macros),
      StepOf<GprsParameters>("GPRS", GPRS),
      StepOf<AuxiliaryInputs>("Auxiliary inputs", E_Aux),
  };
  return steps;
}

}  // namespace ostrel
