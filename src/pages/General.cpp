#include "pages/General.h"

#include <exception>

#include "base/Scope.h"
#include "controls/NumberBox.h"
#include "model/Assign.h"
#include "model/Features.h"
#include "model/PhoneRow.h"
#include "pages/PageFile.h"
#include "store/IniTool.h"

namespace ostrel {
namespace {

constexpr std::string_view kSection = "GENERAL";
constexpr int kStrongestSignal = 31;  // on the scale that modems report
constexpr std::string_view kMovistar = "+34609090909";
constexpr std::string_view kVodafone = "+34607003110";
constexpr std::string_view kOrange = "+34656000311";

std::string PhoneKey(std::string_view word, int slot) { return std::string(word) + NumText(slot); }

}  // namespace

General::General(PageContext& context)
    : context_(context),
      NameBox(form_, "NameBox", 50),
      CSMMovi(form_, centre_, "CSMMovi", "Movistar"),
      CSMVoda(form_, centre_, "CSMVoda", "Vodafone"),
      CSMAmen(form_, centre_, "CSMAmen", "Orange"),
      CSMOtro(form_, centre_, "CSMOtro", "Otro"),
      SMSCBox(form_, "SMSCBox", 16),
      RENVT(form_, "RENVT", 3),
      RENVN(form_, "RENVN", 3),
      PTLF(form_, "PTLF", 16),
      RestoreText(form_, "RestoreText", 19),
      phones_(form_, context),
      session_(form_, context.platform.loop),
      FirmText(form_, "FirmText"),
      SerialText(form_, "SerialText"),
      VBatText(form_, "VBatText"),
      MaxHText(form_, "MaxHText"),
      UsedHText(form_, "UsedHText"),
      RSSIBar(form_, "RSSIBar"),
      LabelRSSI(form_, "LabelRSSI"),
      Warning(form_, "Warning"),
      WarningText(form_, "WarningText"),
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  RSSIBar.SetMaximum(kStrongestSignal);
  CSMMovi.OnClick = [this] { SelectCentre(kMovistar); };
  CSMVoda.OnClick = [this] { SelectCentre(kVodafone); };
  CSMAmen.OnClick = [this] { SelectCentre(kOrange); };
  CSMOtro.OnClick = [this] {
    SMSCBox.face.SetEnabled(true);
    form_.SetFocus(SMSCBox.face);
  };
  session_.SearchBut.OnClick = [this] { SearchPorts(); };
  help_.OnClick = [this] { context_.ShowHelp("General"); };
  Timer1_.OnTimer = [this] {
    if (!context_.ComBusy) SavePage();
    LoadText();
    ShowWarning();
  };
  ShowWarning();
}

void General::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  WarningText.face.SetCaption(
      context_.Translate("La version de firmware del") + " " + context_.profile.TargetName + " " +
      context_.Translate("no soporta el modo extendido en las mascaras, solo puede seleccionar "
                         "DI0 a DI7 y A0 a A3."));
}

void General::Form_Load() {
  LoadText();
  LoadMaskSelection();
  LoadData();
  if (OnScanPorts) OnScanPorts();
  phones_.Start();
  session_.CallNum.face.SetEnabled(session_.ModemCheck.Checked());
  session_.Puerto.SetPosition(0);
  Timer1_.SetEnabled(context_.timersRun);
  session_.TimerComms.SetEnabled(context_.timersRun);
}

void General::ChangeIndex(std::int16_t) {
  if (!context_.ComBusy) SavePage();
  LoadData();
}

void General::SearchPorts() {
  Button& search = session_.SearchBut;
  search.face.SetEnabled(false);
  const AtEnd enabled([&] { search.face.SetEnabled(true); });
  session_.Puerto.Clear();
  try {
    if (OnScanPorts) OnScanPorts();
  } catch (const std::exception&) {
    // What has been found until then is offered.
  }
  session_.Puerto.SetPosition(0);
}

void General::Clear() {
  context_.conf.General = {};
  for (ConfPhone& phone : context_.conf.Phone) phone.TLF.clear();
  LoadData();
}

void General::LoadData() {
  const ConfGeneral& general = context_.conf.General;
  NameBox.SetText(general.DNAME);
  SMSCBox.SetText(general.CSM);
  RENVT.SetText(std::to_string(general.RENVT));
  RENVN.SetText(NumText(general.RENVN));
  PTLF.SetText(general.PTLF);
  RestoreText.SetText(general.REST);
  phones_.LoadList();
}

void General::SavePage() {
  ConfGeneral& general = context_.conf.General;
  general.DNAME = NameBox.Text();
  general.CSM = SMSCBox.Text();
  general.PTLF = PTLF.Text();
  general.REST = RestoreText.Text();
  Assign(general.RENVT, NumVal(RENVT.Text()));
  Assign(general.RENVN, NumVal(RENVN.Text()));
  phones_.SaveList();
  CheckNumberBox(RENVT, "int");
  CheckNumberBox(RENVN, "int");
}

void General::SelectCentre(std::string_view number) {
  SMSCBox.SetText(number);
  SMSCBox.face.SetEnabled(false);
}

void General::CSMCheck() {
  const std::string& number = SMSCBox.Text();
  OptionButton& option = number == kMovistar   ? CSMMovi
                         : number == kVodafone ? CSMVoda
                         : number == kOrange   ? CSMAmen
                                               : CSMOtro;
  option.SetSelected(true);
}

void General::ShowWarning() {
  const bool warns = context_.Connected && !Has(context_.info.Features, Feature::ExtendedMasks);
  Warning.face.SetVisible(warns);
  WarningText.face.SetVisible(warns);
}

void General::ShowInfo(std::string_view key) {
  const DeviceInfo& info = context_.info;
  if (key == "VERSION") FirmText.face.SetCaption(VersionText(info.FirmwareVersion));
  if (key == "SERIAL") SerialText.face.SetCaption(info.SerialNumber);
  if (key == "VBAT") VBatText.face.SetCaption(DecText(info.BatteryVoltage) + "V");
  if (key == "RSSI") {
    RSSIBar.SetValue(info.Rssi);
    LabelRSSI.face.SetCaption("(" + std::to_string(info.Rssi) + ")");
  }
  if (key == "LOG.SIZE") MaxHText.face.SetCaption(DecText(info.LogSize) + " Registros");
  if (key == "LOG.USE") UsedHText.face.SetCaption(DecText(info.LogUsed) + " Registros");
}

void General::VisitFields(DeviceConf& conf, const FieldVisitor& visit) const {
  const std::string section(kSection);
  Describe(conf.General, [&](std::string_view key, auto& field) {
    visit(section, std::string(key), FieldRef(&field));
  });
  for (int slot = 0; slot < kPhones; ++slot)
    visit(section, PhoneKey("TLFM", slot), FieldRef(&conf.Phone[slot]));
}

void General::SaveConf(IniClass& document) { SaveFields(*this, context_, document); }

void General::RestoreConf() {
  Clear();
  bool hasPresentForm = false;
  VisitFields(context_.conf,
              [&](const std::string& section, const std::string& key, FieldRef field) {
                const std::string text = context_.ConfReadKey(section, key);
                const bool isPhone = std::holds_alternative<ConfPhone*>(field);
                if (isPhone && text.empty()) return;
                hasPresentForm = hasPresentForm || isPhone;
                SetFieldText(field, text);
              });
  for (int slot = 0; slot < kPhones && !hasPresentForm; ++slot) {
    const std::string row = context_.ConfReadKey(kSection, PhoneKey("TLF", slot));
    if (!row.empty()) ReadEarlierPhoneRow(row, context_.conf.Phone[slot]);
  }
  LoadData();
}

}  // namespace ostrel
