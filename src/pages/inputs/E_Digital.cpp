#include "pages/inputs/E_Digital.h"

#include "model/Features.h"
#include "pages/AlarmWire.h"

namespace ostrel {

DigitalChannel::DigitalChannel(Form& form, const PageContext& context)
    : context_(context),
      Nombre(form, "Nombre", 19),
      Int_NA(form, contact_, "Int_NA", "N.A."),
      Int_NC(form, contact_, "Int_NC", "N.C.") {
  Int_NA.OnClick = [this] { CurrentNC_ = false; };
  Int_NC.OnClick = [this] { CurrentNC_ = true; };
}

ThresholdBoxes DigitalChannel::Thresholds() {
  return {NumberForm::Num, {{"Persist", "Persist:"}, {"Rearm", "Rearme:"}}};
}

void DigitalChannel::ClearFields(ConfDigital& record) {
  record.NOMBRE.clear();
  record.NC = kFalse;
}

void DigitalChannel::Load(const ConfDigital& record) {
  Nombre.SetText(record.NOMBRE);
  (record.NC ? Int_NC : Int_NA).SetSelected(true);
}

void DigitalChannel::Save(ConfDigital& record) const {
  record.NOMBRE = Nombre.Text();
  record.NC = Bool16(CurrentNC_);
}

std::vector<WireSection> DigitalChannel::WireSections() {
  auto& inputs = context_.conf.Digital;
  return {
      {"DIGITAL",
       [&inputs](LineReader& line) {
         ConfDigital& input = inputs[line.Index()];
         line.Into(input.NOMBRE);
         input.NC = Bool16(line.Number() != 0);
       }},
      {"DIGITAL.ALM",
       [&inputs](LineReader& line) {
         auto& [alarm, limits] = AlarmCell(line, inputs);
         line.Into(alarm.TEXTO);
         line.Into(limits.PERSIST);
         line.Into(limits.REARM);
         ReadAlarmGroup(line, alarm);
         line.Into(alarm.FLAG);
       }},
      {"DIGITAL.ACT",
       [&inputs](LineReader& line) {
         AlarmBlock& alarm = AlarmCell(line, inputs).common;
         ReadActions(line, {&alarm.ACTHI, &alarm.ACTLO});
       }},
  };
}

std::vector<WireBlock> DigitalChannel::WireBlocks() {
  return {{"Digital inputs", [this](StatementList& out) {
             const bool sendsContact = Has(context_.info.Features, Feature::NormallyClosed);
             for (int c = 0; c < context_.profile.DigitalCount; ++c) {
               const ConfDigital& input = context_.conf.Digital[c];
               out.Add(Statement("DINAME")
                           .Digits(c)
                           .Text("=")
                           .Text(input.NOMBRE)
                           .TokenIf(sendsContact && input.NC, ",NC"));
               AddAlarms(out, {"ALMD", ",ACTCLOSE=", ",ACTOPEN=", ""}, c, input.ALARM,
                         ConfDigital::kShape,
                         [](Statement& statement, const ContactThresholds& limits) {
                           statement.Num(",PC=", limits.PERSIST).Num(",PO=", limits.REARM);
                         });
             }
           }}};
}

}  // namespace ostrel
