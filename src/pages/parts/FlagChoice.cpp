#include "pages/parts/FlagChoice.h"

#include "model/Assign.h"

namespace ostrel {
namespace {

constexpr int kFlagsOffered = 16;

}  // namespace

FlagChoice::FlagChoice(Form& form, const ControlNames& names)
    : LabelFlag(form, names("LabelFlag"), "Habilitar sí"),
      FlagCombo(form, names("FlagCombo")),
      LabelTrue(form, names("LabelTrue"), "= TRUE") {}

void FlagChoice::Fill() {
  FlagCombo.Clear();
  FlagCombo.Add("TRUE", 0);
  for (int flag = 0; flag < kFlagsOffered; ++flag)
    FlagCombo.Add("F" + std::to_string(flag), flag + 1);
}

void FlagChoice::Load(std::int16_t flag) {
  FlagCombo.SetPosition(flag >= 0 && flag <= kFlagsOffered ? flag : -1);
}

void FlagChoice::Save(std::int16_t& flag) const { Assign(flag, FlagCombo.Value(flag)); }

void FlagChoice::SetEnabled(bool enabled) {
  for (Face* face : {&LabelFlag.face, &FlagCombo.face, &LabelTrue.face}) face->SetEnabled(enabled);
}

}  // namespace ostrel
