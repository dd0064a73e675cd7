#include "blocks/Orders.h"

#include "blocks/GeneralParameters.h"
#include "blocks/inputs/AnalogInputs.h"
#include "blocks/inputs/DigitalInputs.h"
#include "blocks/inputs/FlagAlarms.h"

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
      UploadStep{"Telephones", {General}, Once, &GeneralParameters::ComposeTelephones},
      StepOf<DigitalInputs>("Digital inputs", E_Digital),
      StepOf<AnalogInputs>("Analog inputs", E_Analog),
      StepOf<AnalogGroups>("Analog groups", Grupos),
      StepOf<FlagAlarms>("Flags", Flags),
  };
  return steps;
}

}  // namespace ostrel
