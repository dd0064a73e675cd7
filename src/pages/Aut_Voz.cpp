#include "pages/Aut_Voz.h"

#include <algorithm>

#include "base/Printable.h"
#include "base/Scope.h"
#include "model/Assign.h"
#include "pages/parts/Edits.h"
#include "platform/Files.h"

namespace ostrel {
namespace {

constexpr std::string_view kTextFilter =
    "Fichero de texto (*.txt)|*.txt|Todos los ficheros (*.*)|*.*";
/// Refused lines that a message names one by one.
constexpr std::size_t kRefusedNamed = 12;

std::string_view ReasonOf(NumberFault fault) {
  switch (fault) {
    case NumberFault::NotANumber:
      return "no es un numero de telefono";
    case NumberFault::InTheListAlready:
      return "ya esta en la lista";
    case NumberFault::ListFull:
      break;
  }
  return "la lista esta llena";
}

/// What came of adding many numbers, for a message.
std::string AddedText(const PageContext& context, std::size_t added,
                      const std::vector<RefusedNumber>& refused) {
  std::string text = context.Translate("Numeros añadidos:") + NumText(added);
  if (refused.empty()) return text;
  text += "\n" + context.Translate("Numeros rechazados:") + NumText(refused.size());
  for (std::size_t i = 0; i < std::min(refused.size(), kRefusedNamed); ++i)
    text += "\n" + context.Translate("Linea") + NumText(refused[i].line) + ": " +
            Excerpt(refused[i].text) + " - " + context.Translate(ReasonOf(refused[i].fault));
  if (refused.size() > kRefusedNamed) text += "\n...";
  return text;
}

}  // namespace

VoiceListControls::VoiceListControls(Form& form, PageContext& context)
    : form_(form),
      context_(context),
      notice_(form, context, Feature::MissedCallMacro,
              "no soporta la funcion de ejecucion de macro por llamada perdida"),
      PhoneLabel(form, "PhoneLabel", "Telefono:"),
      PhoneText(form, "PhoneText"),
      Add_(form, "Add", "Añadir"),
      Del(form, "Del", "Borrar"),
      SearchBut(form, "SearchBut", "Buscar"),
      PhoneList(form, "PhoneList"),
      PasteBut(form, "PasteBut", "Pegar columna"),
      ImportBut(form, "ImportBut", "Importar"),
      ExportBut(form, "ExportBut", "Exportar"),
      MacroLabel(form, "MacroLabel", "Macro a ejecutar por llamada de voz:"),
      PNMacro(form, "PNMacro"),
      ACKCheck(form, "ACKCheck", "Habilitar acuse de recibo"),
      ReadBut(form, "ReadBut", "Leer"),
      WriteBut(form, "WriteBut", "Escribir"),
      PBar(form, "PBar"),
      StateLabel(form, "StateLabel", "Preparado") {
  Edits(PhoneList.face, FieldMeta{"TEL", "number"});
  Edits(PNMacro.face, &ConfAutVoz::MACRO);
  Edits(ACKCheck.face, &ConfAutVoz::SEND_ACK);
  Add_.OnClick = [this] { Add(); };
  Del.OnClick = [this] { Delete(); };
  SearchBut.OnClick = [this] { Search(); };
  PasteBut.OnClick = [this] { Paste(); };
  ImportBut.OnClick = [this] { Import(); };
  ExportBut.OnClick = [this] { Export(); };
  ReadBut.OnClick = [this] { context_.WhenFree([this] { Read(); }); };
  WriteBut.OnClick = [this] { context_.WhenFree([this] { Write(); }); };
  Tick();
}

void VoiceListControls::LoadText() {
  const int position = std::max(PNMacro.Position(), 0);
  PNMacro.Clear();
  PNMacro.Add(context_.Translate("No"), kNoVoiceMacro);
  for (int macro = 0; macro < kVoiceMacros; ++macro) PNMacro.Add(NumText(macro), macro);
  PNMacro.SetPosition(position);
}

void VoiceListControls::LoadData() {
  const ConfAutVoz& list = context_.conf.AutVoz;
  Show(NumbersOf(list));
  const bool isMacro = list.MACRO >= 0 && list.MACRO < kVoiceMacros;
  PNMacro.SetPosition(isMacro ? list.MACRO + 1 : 0);  // no other can be chosen
  ACKCheck.SetChecked(bool(list.SEND_ACK));
}

void VoiceListControls::Save(DeviceConf& conf) const {
  if (isReading_) return;
  SetNumbers(conf.AutVoz, Numbers());
  Assign(conf.AutVoz.MACRO, PNMacro.Value(kNoVoiceMacro));
  conf.AutVoz.SEND_ACK = Bool16(ACKCheck.Checked());
}

void VoiceListControls::Tick() {
  notice_.Update();
  const bool canTalk = context_.Connected && Has(context_.info.Features, Feature::MissedCallMacro);
  ReadBut.face.SetEnabled(canTalk);
  WriteBut.face.SetEnabled(canTalk);
}

std::vector<std::string> VoiceListControls::Numbers() const {
  std::vector<std::string> numbers;
  for (const ListRow& row : PhoneList.Rows()) numbers.push_back(row.text);
  return numbers;
}

void VoiceListControls::Show(const std::vector<std::string>& numbers) {
  PhoneList.Clear();
  for (const std::string& number : numbers) PhoneList.Add(number);
}

std::optional<std::string> VoiceListControls::TypedNumber() {
  const std::string& number = PhoneText.Text();
  if (number.empty() || IsIntText(number)) return number;
  context_.ShowMessage(context_.Translate("Numero de telefono invalido"), BoxIcon::Exclamation);
  form_.SetFocus(PhoneText.face);
  return {};
}

void VoiceListControls::Add() {
  const auto number = TypedNumber();
  if (!number) return;
  if (!number->empty()) {
    if (PhoneList.Rows().size() >= static_cast<std::size_t>(kVoiceNumbers))
      context_.ShowMessage(
          context_.Translate("Imposible añadir, se ha alcanzado el numero maximo de entradas en la "
                             "lista de numeros autorizados"),
          BoxIcon::Information);
    else
      PhoneList.Add(*number);
  }
  PhoneText.SetText("");
  form_.SetFocus(PhoneText.face);
}

void VoiceListControls::Delete() { PhoneList.Remove(PhoneList.Position()); }

void VoiceListControls::Search() {
  const auto number = TypedNumber();
  if (!number || number->empty()) return;
  const auto& rows = PhoneList.Rows();
  const auto found = std::ranges::find(rows, *number, &ListRow::text);
  if (found == rows.end())
    return context_.ShowMessage(context_.Translate("No se ha encontrado"), BoxIcon::None);
  PhoneList.SetPosition(static_cast<int>(found - rows.begin()));
}

void VoiceListControls::Paste() {
  if (context_.clipboardText) TakeNumbers(context_.clipboardText());
}

void VoiceListControls::Import() {
  const auto path = context_.platform.dialogs.ChooseFile(
      {.mode = FileQuestion::Mode::Open, .filter = context_.Translate(kTextFilter)});
  if (!path) return;
  const auto text = context_.platform.files.Read(*path);
  if (!text)
    return context_.ShowMessage(context_.Translate("No se puede leer el fichero"),
                                BoxIcon::Exclamation);
  TakeNumbers(*text);
}

void VoiceListControls::Export() {
  const auto path = context_.platform.dialogs.ChooseFile({.mode = FileQuestion::Mode::Save,
                                                          .filter = context_.Translate(kTextFilter),
                                                          .overwritePrompt = true});
  if (!path || path->empty()) return;
  std::string text;
  for (const ListRow& row : PhoneList.Rows()) text += row.text + "\n";
  const FileResult saved = SaveWhole(context_.platform.files, *path, text);
  if (!saved.Ok())
    context_.ShowMessage(context_.Translate("No se puede escribir el fichero") + ": " + saved.error,
                         BoxIcon::Exclamation);
}

void VoiceListControls::TakeNumbers(std::string_view text) {
  std::vector<std::string> numbers = Numbers();
  const std::size_t before = numbers.size();
  const auto refused = AddNumbers(text, numbers);
  Show(numbers);
  context_.ShowMessage(AddedText(context_, numbers.size() - before, refused),
                       refused.empty() ? BoxIcon::Information : BoxIcon::Exclamation);
}

void VoiceListControls::Write() {
  Save(context_.conf);
  const ConfAutVoz list = context_.conf.AutVoz;
  if (context_.mayWriteVoiceList && !context_.mayWriteVoiceList(list)) return;
  RunDialogue("Escribiendo...", "Lista escrita con exito",
              [&] { return context_.writeVoiceList(list); });
}

void VoiceListControls::Read() {
  Save(context_.conf);
  const Lent reading(isReading_, true);
  RunDialogue("Leyendo...", "Lista leida con exito", [this] {
    const ConfAutVoz before = context_.conf.AutVoz;
    ConfAutVoz list = before;
    const bool isRead = context_.readVoiceList(list);
    // Nothing here commits meanwhile: another list is that of a file opened since.
    if (!(context_.conf.AutVoz == before)) return false;
    context_.conf.AutVoz = list;  // of a list that failed, too, what has come
    if (isRead) LoadData();
    return isRead;
  });
}

void VoiceListControls::RunDialogue(std::string_view during, std::string_view success,
                                    const std::function<bool()>& dialogue) {
  form_.SetMousePointer(Pointer::Hourglass);
  const AtEnd shown([this] { form_.SetMousePointer(Pointer::Default); });
  ShowState(during);
  ShowState(dialogue() ? success : "Error!");
}

void VoiceListControls::ShowState(std::string_view key) {
  StateLabel.face.SetCaption(key, context_.Translate(key));
}

}  // namespace ostrel
