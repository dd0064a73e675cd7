#include "blocks/inputs/Sampling.h"

namespace ostrel {

void Sampling::Clear(DeviceConf& conf, const TargetProfile&, const Translation&) {
  conf.SAMPLERATE = kSlowSampling;
  for (int meter = 0; meter < kMeters; ++meter) conf.Caudal[meter].TOTALRATIO = 1;
}

const std::array<LineSection, 2> Sampling::kLines{{
    {"SRATE",
     [](LineReader& line, DeviceConf& conf, const DeviceInfo&) {
       conf.SAMPLERATE = line.Number() == 1 ? kFastSampling : kSlowSampling;
     }},
    {"TOTALRATIO", [](LineReader& line, DeviceConf& conf,
                      const DeviceInfo&) { line.Into(conf.Caudal[line.Index()].TOTALRATIO); }},
}};

void Sampling::Compose(const DeviceConf& conf, const Receiver&, int, StatementList& out) {
  out.Add(Statement("SAMPLERATE=").Text(conf.SAMPLERATE == kFastSampling ? "1" : "0"));
}

}  // namespace ostrel
