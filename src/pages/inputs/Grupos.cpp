#include "pages/inputs/Grupos.h"

#include "pages/parts/ControlNames.h"

namespace ostrel {
namespace {

constexpr std::array<std::int16_t, 3> kVoltages{0, 12, 24};
constexpr int kOutputs = 4;

ControlNames InGroup(int group) { return {.suffix = "(" + std::to_string(group) + ")"}; }

}  // namespace

AnalogGroupControls::GroupControls::GroupControls(Form& form, int group)
    : frame(form, InGroup(group)("Frame"), "Grupo " + std::to_string(group)),
      ComboSalida(form, InGroup(group)("ComboSalida")),
      ComboTension(form, InGroup(group)("ComboTension")),
      Period(form, InGroup(group)("Period")) {
  for (int output = 0; output < kOutputs; ++output) ComboSalida.Add(std::to_string(output), output);
  for (const std::int16_t voltage : kVoltages) ComboTension.Add(std::to_string(voltage), voltage);
  fields.Bind(Period, &ConfGrupo::PERIOD, NumberForm::Num, kInt);
  Edits(ComboSalida.face, &ConfGrupo::SALIDA);
  Edits(ComboTension.face, &ConfGrupo::VOLTAJE);
  for (Face* face : {&Period.face, &ComboSalida.face, &ComboTension.face}) {
    EditedField field = face->Field();
    field.channel = group;
    face->SetField(field);
  }
}

void AnalogGroupControls::GroupControls::Load(const ConfGrupo& record) {
  ComboSalida.SetPosition(record.SALIDA);
  for (std::size_t row = 0; row < kVoltages.size(); ++row)
    if (kVoltages[row] == record.VOLTAJE) ComboTension.SetPosition(static_cast<int>(row));
  fields.Load(record);
}

/// What the chosen rows say counts, not what stood in the model.
void AnalogGroupControls::GroupControls::Save(ConfGrupo& record) const {
  Assign(record.SALIDA, NumVal(ComboSalida.Text()));
  Assign(record.VOLTAJE, NumVal(ComboTension.Text()));
  fields.Save(record);
}

AnalogGroupControls::AnalogGroupControls(Form& form, PageContext& context)
    : context_(context),
      groups_{GroupControls(form, 0), GroupControls(form, 1), GroupControls(form, 2),
              GroupControls(form, 3)} {}

void AnalogGroupControls::LoadData() {
  for (int i = 0; i < kGroups; ++i)
    groups_[static_cast<std::size_t>(i)].Load(context_.conf.Grupo[i]);
}

void AnalogGroupControls::Save(DeviceConf& conf) const {
  for (int i = 0; i < kGroups; ++i) groups_[static_cast<std::size_t>(i)].Save(conf.Grupo[i]);
}

void AnalogGroupControls::CheckNumbers() {
  for (const GroupControls& group : groups_) group.fields.CheckNumbers();
}

}  // namespace ostrel
