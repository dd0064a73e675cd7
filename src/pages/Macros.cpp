#include "pages/Macros.h"

#include "base/Utf8.h"
#include "pages/parts/Edits.h"

namespace ostrel {
namespace {

/// The number of a macro goes up by itself to the first that no action can start, that of an
/// equation to the last that there is.
constexpr int kLastByMacros = kMacrosOfActions;
constexpr int kLastByEquations = kEquations - 1;

/// Why a line does not go back into the boxes; `isMacro` where it speaks of one.
std::string_view WhyNotEdited(const std::string& line, bool isMacro) {
  if (!isMacro || line.find(kMacroName) != std::string::npos)
    return "La linea no tiene la forma de una macro ni de una ecuacion";
  if (line.starts_with(kMacroWord))
    return "La macro no tiene nombre y por eso no se puede llevar a los campos. Eliminela y "
           "escribala de nuevo";
  return "La ecuacion nombra una macro y por eso no se puede llevar a los campos. Eliminela y "
         "escribala de nuevo";
}

}  // namespace

MacroControls::MacroControls(Form& form, PageContext& context)
    : context_(context),
      Label4(form, "Label4", "Macro / Equacion:"),
      MacroNum(form, "MacroNum"),
      Label1(form, "Label1", "Nombre:"),
      MacroName(form, "MacroName"),
      Label2(form, "Label2", "Comando:"),
      MacroCommand(form, "MacroCommand"),
      AddBut(form, "AddBut", "Añadir Macro"),
      AddEqBut(form, "AddEqBut", "Añadir Ecuacion"),
      Label8(form, "Label8", "Doble click para editar:"),
      MacroPool(form, "MacroPool"),
      DelBut(form, "DelBut", "Eliminar"),
      FreeMem(form, "FreeMem"),
      NotSent(form, "NotSent") {
  for (int number = 0; number < kMacroPlaces; ++number) MacroNum.Add(NumText(number), number);
  MacroNum.SetPosition(0);
  Edits(MacroPool.face, FieldMeta{"LINE", "line"});
  AddBut.OnClick = [this] { AddMacro(); };
  AddEqBut.OnClick = [this] { AddEquation(); };
  DelBut.OnClick = [this] { Delete(); };
  MacroPool.OnDoubleClick = [this] { Edit(); };
}

void MacroControls::LoadData() {
  MacroPool.Clear();
  for (int place = 0; place < kMacroPlaces; ++place)
    if (const std::string& line = context_.conf.Macro.LINE[place]; !line.empty())
      MacroPool.Add(line);
  ShowMemory();
}

void MacroControls::Save(DeviceConf& conf) const {
  for (int place = 0; place < kMacroPlaces; ++place)
    conf.Macro.LINE[place] = MacroPool.RowText(place);
}

void MacroControls::AfterClear() {
  MacroNum.SetPosition(0);
  MacroCommand.SetText("");
  MacroName.SetText("");
  MacroPool.Clear();
  ShowMemory();
}

void MacroControls::AddMacro() {
  if (MacroCommand.Text().empty()) return;
  std::string body = MacroCommand.Text();
  if (!MacroName.Text().empty()) body.append(kMacroName).append(MacroName.Text());
  Add(PoolLine(kMacroWord, MacroNum.Position(), body), kLastByMacros);
}

void MacroControls::AddEquation() {
  if (MacroCommand.Text().empty()) return;
  if (MacroNum.Position() >= kEquations)
    return context_.ShowMessage(
        context_.Translate("Debe seleccionar un numero de ecuacion menor a") + NumText(kEquations),
        BoxIcon::None);
  if (!MacroName.Text().empty())
    context_.ShowMessage(context_.Translate("El campo nombre se descartara"), BoxIcon::None);
  Add(PoolLine(kEquationWord, MacroNum.Position(), MacroCommand.Text()), kLastByEquations);
}

void MacroControls::Add(std::string line, int lastToAdvance) {
  if (MacroPool.Rows().size() >= static_cast<std::size_t>(kMacroPlaces))
    return context_.ShowMessage(context_.Translate("No caben mas lineas: elimine alguna antes"),
                                BoxIcon::Exclamation);
  MacroPool.Add(line);
  Changed();
  if (MacroNum.Position() < lastToAdvance) MacroNum.SetPosition(MacroNum.Position() + 1);
  MacroCommand.SetText("");
  MacroName.SetText("");
}

void MacroControls::Delete() {
  if (MacroPool.Position() < 0) return;
  MacroPool.Remove(MacroPool.Position());
  Changed();
}

void MacroControls::Edit() {
  const std::string line = MacroPool.RowText(MacroPool.Position());
  const bool isMacro = line.find(kMacroWord) != std::string::npos;
  if (isMacro ? EditMacro(line) : EditEquation(line)) return;
  context_.ShowMessage(context_.Translate(WhyNotEdited(line, isMacro)), BoxIcon::Exclamation);
}

bool MacroControls::EditMacro(const std::string& line) {
  const std::size_t name = line.find(kMacroName);
  if (name == std::string::npos) return false;
  const std::size_t open = line.rfind('{', name);
  const std::size_t nameStart = name + kMacroName.size();
  const std::size_t close = line.find('}', nameStart);
  if (open == std::string::npos || close == std::string::npos) return false;
  MacroName.SetText(line.substr(nameStart, close - nameStart));
  MacroCommand.SetText(line.substr(open + 1, name - open - 1));
  return true;
}

bool MacroControls::EditEquation(const std::string& line) {
  const std::size_t open = line.find('{');
  const std::size_t close = open == std::string::npos ? open : line.find('}', open);
  if (close == std::string::npos) return false;
  MacroName.SetText("");
  MacroCommand.SetText(line.substr(open + 1, close - open - 1));
  return true;
}

void MacroControls::Changed() {
  ShowMemory();
  Save(context_.conf);
}

void MacroControls::ShowMemory() {
  int used = 0;
  for (const ListRow& row : MacroPool.Rows()) used += static_cast<int>(CharacterCount(row.text));
  FreeMem.face.SetCaption(context_.Translate("Memoria restante") + NumText(kMacroMemory - used));
  const int unsent = static_cast<int>(MacroPool.Rows().size()) - kMacroPlacesSent;
  NotSent.face.SetVisible(unsent > 0);
  NotSent.face.SetCaption(
      context_.Translate("Al dispositivo solo se envian las 40 primeras lineas. No se envian:") +
      NumText(unsent));
}

}  // namespace ostrel
