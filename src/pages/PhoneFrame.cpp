#include "pages/PhoneFrame.h"

#include <array>
#include <tuple>
#include <utility>

#include "blocks/GeneralParameters.h"
#include "model/PhoneRow.h"

namespace ostrel {
namespace {

constexpr int kPriorities = 8;
constexpr int kDefaultPrivilege = 1;            // position of "Administrador"
constexpr std::size_t kMostRows = kPhones + 1;  // one more than is kept
constexpr int kMaskFlags = 16;

/// The privilege levels in the order of their list.
constexpr std::array<std::pair<std::string_view, std::int32_t>, 4> kPrivileges{
    {{"Kestrel", 3}, {"Administrador", 2}, {"U. Avanzado", 1}, {"Usuario", 0}}};

}  // namespace

PhoneFrame::PhoneFrame(Form& form, PageContext& context)
    : form_(form),
      context_(context),
      NewTlf(form, "NewTlf", kNumberLength),
      PrioBox(form, "PrioBox"),
      Privilegios(form, "Privilegios"),
      CheckMask(form, "CheckMask", "Habilitar mascara"),
      MaskInclude(form, mode_, "MaskInclude", "Incluir"),
      MaskExclude(form, mode_, "MaskExclude", "Excluir"),
      MaskSelection(form, "MaskSelection"),
      Anadir(form, "Anadir", "Añadir"),
      Borrar(form, "Borrar", "Borrar"),
      LabelEditar(form, "LabelEditar", "Doble click para editar:"),
      ListaTlf(form, "ListaTlf") {
  PrioBox.Add("No Prio.", 0);
  for (int prio = 1; prio <= kPriorities; ++prio)
    PrioBox.Add("Prio. " + std::to_string(prio), prio);
  for (const auto& [text, level] : kPrivileges) Privilegios.Add(text, level);
  ListaTlf.face.SetField({.word = GeneralParameters::kPhoneMeta.word});
  CheckMask.OnClick = [this] { ApplyCheckMask(); };
  Anadir.OnClick = [this] { AddPhone(); };
  Borrar.OnClick = [this] { ListaTlf.Remove(ListaTlf.Position()); };
  ListaTlf.OnDoubleClick = [this] { EditRow(); };
}

void PhoneFrame::LoadMaskSelection() {
  const TargetProfile& model = context_.profile;
  const std::array<std::tuple<std::string_view, int, std::string_view>, 7> groups{{
      {"DI", model.DigitalCount, ", Dig. In"},
      {"AI", model.AnalogCount, ", Analog. In"},
      {"FL", model.CaudalCount, ", QMeter"},
      {"MB", model.ModbusCount, ", MODBUS"},
      {"EX", model.ModuloCount, ", Expansion"},
      {"PB", model.OneWireCount, ", Temp/Hum"},
      {"FG", kMaskFlags, ", Flag"},
  }};
  MaskSelection.Clear();
  for (const auto& [token, count, words] : groups)
    for (int n = 0; n < count; ++n)
      MaskSelection.Add(std::string(token) + std::to_string(n) + std::string(words));
}

void PhoneFrame::Start() {
  ApplyCheckMask();
  Privilegios.SetPosition(kDefaultPrivilege);
  PrioBox.SetPosition(0);
}

void PhoneFrame::SelectFirst() { ListaTlf.SetPosition(0); }

void PhoneFrame::ApplyCheckMask() {
  const bool masked = CheckMask.Checked();
  MaskSelection.face.SetEnabled(masked);
  if (!masked) MaskInclude.SetSelected(true);
  MaskInclude.face.SetEnabled(masked);
  MaskExclude.face.SetEnabled(masked);
}

std::string PhoneFrame::EnteredRow(int& channels) const {
  std::string row = NewTlf.Text();
  row += ",Prio=" + std::to_string(PrioBox.Value());
  row += ",PRV" + std::to_string(Privilegios.Value());
  channels = 0;
  if (!CheckMask.Checked()) return row + ",MASKMODE0";
  row += MaskExclude.Selected() ? ",MASKMODE2" : ",MASKMODE1";
  for (int i = 0; i < static_cast<int>(MaskSelection.Rows().size()); ++i) {
    if (!MaskSelection.Selected(i)) continue;
    row += ",";
    row += FieldOf(MaskSelection.Rows()[static_cast<std::size_t>(i)].text, 1);
    ++channels;
  }
  return row;
}

int PhoneFrame::RowOf(std::string_view number) const {
  for (int row = 0; row < static_cast<int>(ListaTlf.Rows().size()); ++row)
    if (FieldOf(ListaTlf.RowText(row), 1) == number) return row;
  return -1;
}

void PhoneFrame::AddPhone() {
  if (!NewTlf.Text().empty()) {
    if (!IsIntText(NewTlf.Text())) {
      context_.ShowMessage(context_.Translate("Error, no es un numero de telefono correcto"),
                           BoxIcon::Exclamation);
      form_.SetFocus(NewTlf.face);
      return;
    }
    const int former = RowOf(NewTlf.Text());
    const bool replaces =
        former >= 0 && context_.Ask("El numero ya esta en la lista. Desea reemplazarlo?");
    if (!replaces && ListaTlf.Rows().size() >= kMostRows) {
      context_.ShowMessage(context_.Translate("Lista llena"), BoxIcon::Information);
    } else {
      int channels = 0;
      const std::string row = EnteredRow(channels);
      if (channels > kMaskPlaces) {
        context_.ShowMessage(context_.Translate("No puede añadir mas de 16 canales a la mascara"),
                             BoxIcon::Exclamation);
        return;
      }
      if (replaces)
        ListaTlf.Replace(former, row);
      else
        ListaTlf.Add(row);
    }
  }
  ResetEntry();
}

void PhoneFrame::ResetEntry() {
  NewTlf.SetText("");
  form_.SetFocus(NewTlf.face);
  PrioBox.SetPosition(0);
  Privilegios.SetPosition(kDefaultPrivilege);
  CheckMask.SetChecked(false);
  MaskSelection.UnselectAll();
  ApplyCheckMask();
}

void PhoneFrame::EditRow() {
  const std::string row = ListaTlf.RowText(ListaTlf.Position());
  NewTlf.SetText(FieldOf(row, 1));
  for (int prio = 0; prio <= kPriorities; ++prio)
    if (FieldOf(row, 2) == "Prio=" + std::to_string(prio)) PrioBox.SetPosition(prio);
  for (std::size_t i = 0; i < kPrivileges.size(); ++i)
    if (FieldOf(row, 3) == "PRV" + std::to_string(kPrivileges[i].second))
      Privilegios.SetPosition(static_cast<int>(i));
  const auto mode = FieldOf(row, 4);
  if (mode == "MASKMODE0") CheckMask.SetChecked(false);
  if (mode == "MASKMODE1" || mode == "MASKMODE2") {
    CheckMask.SetChecked(true);
    (mode == "MASKMODE1" ? MaskInclude : MaskExclude).SetSelected(true);
  }
  SelectMask(row);
}

void PhoneFrame::SelectMask(const std::string& row) {
  MaskSelection.UnselectAll();
  for (int place = 0; place < kMaskPlaces; ++place) {
    const auto token = FieldOf(row, place + 5);
    if (token.empty()) continue;
    for (int i = 0; i < static_cast<int>(MaskSelection.Rows().size()); ++i)
      if (FieldOf(MaskSelection.Rows()[static_cast<std::size_t>(i)].text, 1) == token)
        MaskSelection.SetSelected(i, true);
  }
}

void PhoneFrame::LoadList() {
  ListaTlf.Clear();
  for (int slot = 0; slot < kPhones; ++slot) {
    const ConfPhone& phone = context_.conf.Phone[slot];
    if (!phone.TLF.empty()) ListaTlf.Add(PhoneRow(phone, context_.profile.IsS100));
  }
}

void PhoneFrame::SaveList(DeviceConf& conf) const {
  for (int slot = 0; slot < kPhones; ++slot) ReadPhoneRow(ListaTlf.RowText(slot), conf.Phone[slot]);
}

}  // namespace ostrel
