#include "pages/General.h"

#include <exception>

#include "base/Scope.h"
#include "pages/PageBlock.h"

namespace ostrel {
namespace {

constexpr std::string_view kMovistar = "+34609090909";
constexpr std::string_view kVodafone = "+34607003110";
constexpr std::string_view kOrange = "+34656000311";

}  // namespace

General::General(PageContext& context)
    : context_(context),
      NameBox(form_, "NameBox"),
      CSMMovi(form_, centre_, "CSMMovi", "Movistar"),
      CSMVoda(form_, centre_, "CSMVoda", "Vodafone"),
      CSMAmen(form_, centre_, "CSMAmen", "Orange"),
      CSMOtro(form_, centre_, "CSMOtro", "Otro"),
      SMSCBox(form_, "SMSCBox"),
      RENVT(form_, "RENVT"),
      RENVN(form_, "RENVN"),
      PTLF(form_, "PTLF"),
      RestoreText(form_, "RestoreText"),
      phones_(form_, context),
      session_(form_, context.platform.loop),
      FirmText(form_, "FirmText"),
      SerialText(form_, "SerialText"),
      VBatText(form_, "VBatText"),
      MaxHText(form_, "MaxHText"),
      UsedHText(form_, "UsedHText"),
      RSSIBar(form_, "RSSIBar"),
      LabelRSSI(form_, "LabelRSSI"),
      notice_(form_, context, Feature::ExtendedMasks,
              "no soporta el modo extendido en las mascaras, solo puede seleccionar DI0 a DI7 y "
              "A0 a A3."),
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  fields_.Bind(NameBox, &ConfGeneral::DNAME);
  fields_.Bind(SMSCBox, &ConfGeneral::CSM);
  fields_.Bind(RENVT, &ConfGeneral::RENVT, NumberForm::Dec, kInt);
  fields_.Bind(RENVN, &ConfGeneral::RENVN, NumberForm::Num, kInt);
  fields_.Bind(PTLF, &ConfGeneral::PTLF);
  fields_.Bind(RestoreText, &ConfGeneral::REST);
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
    notice_.Update();
  };
}

void General::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
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
  ClearBlock(context_, Id());
  LoadData();
}

void General::LoadData() {
  fields_.Load(context_.conf.General);
  phones_.LoadList();
}

void General::SavePage() {
  SaveInto(context_.conf);
  fields_.CheckNumbers();
}

void General::SaveInto(DeviceConf& conf) const {
  fields_.Save(conf.General);
  phones_.SaveList(conf);
}

void General::SaveConf(IniClass& document) { SaveBlock(context_, Id(), document); }

void General::RestoreConf() {
  Clear();
  ReadBlockKeys(context_, Id());
  LoadData();
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

void General::ShowInfo(std::string_view key) {
  const DeviceInfo& info = context_.info;
  const std::string records = " " + context_.Translate("Registros");
  if (key == "VERSION") FirmText.face.SetCaption(VersionText(info.FirmwareVersion));
  if (key == "SERIAL") SerialText.face.SetCaption(info.SerialNumber);
  if (key == "VBAT") VBatText.face.SetCaption(DecText(info.BatteryVoltage) + "V");
  if (key == "RSSI") {
    RSSIBar.SetValue(info.Rssi);
    LabelRSSI.face.SetCaption("(" + std::to_string(info.Rssi) + ")");
  }
  if (key == "LOG.SIZE") MaxHText.face.SetCaption(DecText(info.LogSize) + records);
  if (key == "LOG.USE") UsedHText.face.SetCaption(DecText(info.LogUsed) + records);
}

}  // namespace ostrel
