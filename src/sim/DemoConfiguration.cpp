#include <algorithm>
#include <cstddef>
#include <span>
#include <stdexcept>

#include "sim/Configuration.h"
#include "sim/NumberText.h"
#include "sim/StatementParser.h"

namespace ostrel::sim {
namespace {

// A waterworks in the statements of an upload. A "?" in a statement stands for the channel.

constexpr std::string_view kGeneral[] = {
    "CSM=+34609090909", "PTLF=+34600123456", "REST=(normalizado)",
    "CLRTLF",           "RETRYMAX= 3",       "RETRYTIME= 600",
};

constexpr std::string_view kPhoneList[] = {
    "+TLF=+34600111222,Prio=1,PRV2,MASKMODE0",
    "+TLF=+34600333444,Prio=2,PRV1,MASK= 21 22 61 255 255 255 255 255 255 255 255 255 255 255 255"
    " 255,MASKMODE1",
};

constexpr std::string_view kDigitalNames[] = {
    "Boya m\xE1xima", "Boya m\xEDnima",     "Bomba 1 marcha", "Bomba 1 t\xE9rmico", "Intrusi\xF3n",
    "Bomba 2 marcha", "Bomba 2 t\xE9rmico", "Red 230V",       "Fallo red"};

constexpr std::string_view kDigitalAlarms[] = {
    "+ALMD0=Dep\xF3sito lleno,INDEX= 0,PC= 5,PO= 5,SREST,RING,EQ= 0,ACTCLOSE= 80,ACTOPEN=",
    "+ALMD1=Dep\xF3sito vac\xEDo,INDEX= 0,PC= 5,PO= 10,SREST,RESEND,RING,EQ= 0,ACTCLOSE= 80 43,"
    "ACTOPEN= 80",
};

constexpr std::string_view kAnalogScales[] = {
    "AICONF?=Nivel dep\xF3sito,UNIT=m,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,FSUNIT= 6.5,GROUP= 0",
    "AICONF?=Presi\xF3n salida,UNIT=bar,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,FSUNIT= 16,GROUP= 0",
    "AICONF?=Cloro libre,UNIT=mg/l,CURRENT,BSVAL= 4,FSVAL= 20,BSUNIT= 0,FSUNIT= 2,GROUP= 1",
    "AICONF?=Turbidez,UNIT=NTU,10V,BSVAL= 0,FSVAL= 10,BSUNIT= 0,FSUNIT= 100,GROUP= 1",
};

constexpr std::string_view kPressure =
    "AICONF0=Presi\xF3n red,UNIT=bar,PRESSURE,BSVAL= 0,FSVAL= 0,BSUNIT= 0,FSUNIT= 10,GROUP= 0";

constexpr std::string_view kAnalogAlarms[] = {
    "+ALMA0=Nivel o presi\xF3n fuera de rango,INDEX= 0,MAX= 6.2,MIN= .8,HIST= .1,P= 3,SREST,"
    "EQ= 0,ACTHI= 80,ACTLO= 80 43,ACTNOM= 80",
    "AGRP0= 0,T= 100,V= 12",
};

constexpr std::string_view kFlagAlarm[] = {
    "+ALMF0=Bombeo en hora punta,INDEX= 0,START=8:00:00,STOP=22:00:00,WEEK=1111100,ACTHI= 80,"
    "ACTLO=",
};

constexpr std::string_view kFlows[] = {
    "FLOWCONF?=Caudal entrada,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
    "FLOWCONF?=Caudal salida,UNIT=m\xB3/h,TB= 60,REGDAYMIN,RATIO=0.1",
    "FLOWCONF?=Riego parque,UNIT=l/min,TB= 30,REGDAYMIN,RATIO=1",
};

constexpr std::string_view kMaths[] = {
    "MCCONF?=Balance,UNIT=m\xB3/h,EQ=Q0-Q1",
};

constexpr std::string_view kModbusChannels[] = {
    "MBCONF?=Energ\xED"
    "a bomba 1,UNIT=kWh",
    "MBCONF?=Energ\xED"
    "a bomba 2,UNIT=kWh",
    "MBCONF?=Tensi\xF3n L1,UNIT=V",
};

constexpr std::string_view kModules[] = {
    "EXPINPUTDCONF?=Puerta caseta",
    "EXPINPUTCCONF?=Contador barrio alto",
    "EXPINPUTACONF?=Nivel pozo 3,UNIT=m",
};

class Demo {
 public:
  explicit Demo(Model model) : self_{model, TraitsOf(model).features} {}

  Configuration Make() {
    const ModelTraits& traits = self_.Traits();
    Apply("ID=Bombeo El Pinar (" + std::string(traits.displayName) + ")");
    Apply(kGeneral);
    Apply(kPhoneList);
    for (int i = 0; i < traits.digitals; ++i)
      Apply("DINAME?=" + std::string(kDigitalNames[static_cast<std::size_t>(i)]), i);
    Apply(kDigitalAlarms);
    if (self_.model == Model::BQ)
      Apply(kPressure);
    else
      ApplyChannels(kAnalogScales, traits.analogs);
    if (traits.analogs > 0) Apply(kAnalogAlarms);
    Apply(kFlagAlarm);
    ApplyChannels(kFlows, traits.flows);
    ApplyChannels(kMaths, traits.maths);
    ApplyChannels(kModbusChannels, traits.modbus);
    ApplyChannels(kModules, traits.modules);
    return std::move(conf_);
  }

 private:
  void Apply(std::string_view pattern, int channel = 0) {
    std::string statement(pattern);
    std::string number;
    AppendNumber(number, channel);
    if (const std::size_t at = statement.find('?'); at != std::string::npos)
      statement.replace(at, 1, number);
    const std::string why = ApplyStatement(statement, self_, conf_);
    if (!why.empty()) throw std::logic_error("demo statement " + statement + ": " + why);
  }
  void Apply(std::span<const std::string_view> statements) {
    for (const std::string_view statement : statements) Apply(statement);
  }
  void ApplyChannels(std::span<const std::string_view> patterns, int channels) {
    const auto count = std::min(patterns.size(), static_cast<std::size_t>(channels));
    for (std::size_t i = 0; i < count; ++i) Apply(patterns[i], static_cast<int>(i));
  }

  Identity self_;
  Configuration conf_;
};

}  // namespace

Configuration DemoConfiguration(Model model) { return Demo(model).Make(); }

}  // namespace ostrel::sim
