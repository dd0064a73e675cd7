#include "pages/inputs/Grupos.h"

#include "controls/NumberBox.h"
#include "model/Assign.h"
#include "pages/PageFile.h"

namespace ostrel {
namespace {

constexpr std::array<std::int16_t, 3> kVoltages{0, 12, 24};

std::string Numbered(std::string_view name, int index) {
  return std::string(name) + "(" + std::to_string(index) + ")";
}

}  // namespace

Grupos::GroupControls::GroupControls(Form& form, int group)
    : frame(form, Numbered("Frame", group), "Grupo " + std::to_string(group)),
      ComboSalida(form, Numbered("ComboSalida", group)),
      ComboTension(form, Numbered("ComboTension", group)),
      Period(form, Numbered("Period", group), 5) {
  for (int output = 0; output < 4; ++output) ComboSalida.Add(std::to_string(output), output);
  for (const std::int16_t voltage : kVoltages) ComboTension.Add(std::to_string(voltage), voltage);
}

Grupos::Grupos(PageContext& context)
    : context_(context),
      groups_{GroupControls(form_, 0), GroupControls(form_, 1), GroupControls(form_, 2),
              GroupControls(form_, 3)},
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  help_.OnClick = [this] { context_.ShowHelp("Group"); };
  Timer1_.OnTimer = [this] { CheckNumbers(); };
}

void Grupos::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
}

void Grupos::Form_Deactivate() {
  if (!context_.ComBusy) SavePage();
}

void Grupos::ChangeIndex(std::int16_t) {
  Form_Deactivate();
  Form_Load();
}

void Grupos::Form_Load() {
  LoadText();
  LoadData();
  Timer1_.SetEnabled(context_.timersRun);
}

void Grupos::Clear() {
  for (int i = 0; i < kGroups; ++i) context_.conf.Grupo[i] = {};
  LoadData();
}

void Grupos::LoadData() {
  for (int i = 0; i < kGroups; ++i) {
    const ConfGrupo& group = context_.conf.Grupo[i];
    auto& [frame, salida, tension, period] = groups_[static_cast<std::size_t>(i)];
    salida.SetPosition(group.SALIDA);
    for (std::size_t row = 0; row < kVoltages.size(); ++row)
      if (kVoltages[row] == group.VOLTAJE) tension.SetPosition(static_cast<int>(row));
    period.SetText(NumText(group.PERIOD));
  }
}

void Grupos::SavePage() {
  for (int i = 0; i < kGroups; ++i) {
    ConfGrupo& group = context_.conf.Grupo[i];
    const auto& [frame, salida, tension, period] = groups_[static_cast<std::size_t>(i)];
    Assign(group.SALIDA, NumVal(salida.Text()));
    Assign(group.VOLTAJE, NumVal(tension.Text()));
    Assign(group.PERIOD, NumVal(period.Text()));
  }
  CheckNumbers();
}

void Grupos::CheckNumbers() {
  for (GroupControls& group : groups_) CheckNumberBox(group.Period, "int");
}

void Grupos::SaveConf(IniClass& document) { SaveFields(*this, context_, document); }

void Grupos::RestoreConf() {
  Clear();
  RestoreFields(*this, context_);
  LoadData();
}

void Grupos::VisitFields(DeviceConf& conf, const FieldVisitor& visit) const {
  VisitRecords(conf.Grupo, kGroups, "GRUPO", visit);
}

std::vector<WireSection> Grupos::WireSections() {
  auto& groups = context_.conf.Grupo;
  return {{"GROUP", [&groups](LineReader& line) {
             ConfGrupo& group = groups[line.Index()];
             line.Into(group.SALIDA);
             line.Into(group.VOLTAJE);
             line.Into(group.PERIOD);
           }}};
}

std::vector<WireBlock> Grupos::WireBlocks() {
  return {{"Analog groups", [this](StatementList& out) {
             for (int i = 0; i < context_.profile.AnalogCount; ++i) {
               const ConfGrupo& group = context_.conf.Grupo[i];
               out.Add(Statement("AGRP")
                           .Digits(i)
                           .Text("=")
                           .Text(NumText(group.SALIDA))
                           .Num(",T=", group.PERIOD)
                           .Num(",V=", group.VOLTAJE));
             }
           }}};
}

}  // namespace ostrel
