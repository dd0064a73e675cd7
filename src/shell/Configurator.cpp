#include "shell/Configurator.h"

#include <algorithm>

#include "base/Scope.h"
#include "blocks/Blocks.h"
#include "blocks/Configuration.h"
#include "blocks/Orders.h"
#include "pages/Aut_Voz.h"
#include "pages/GPRS.h"
#include "pages/Macros.h"
#include "pages/bus/CONF_MODBUS.h"
#include "pages/bus/E_MODBUS.h"
#include "pages/expansion/E_Modular.h"
#include "pages/inputs/Caudal.h"
#include "pages/inputs/E_Analog.h"
#include "pages/inputs/E_Aux.h"
#include "pages/inputs/E_Digital.h"
#include "pages/inputs/E_Math.h"
#include "pages/inputs/E_OneWire.h"
#include "pages/inputs/Flags.h"
#include "pages/inputs/Grupos.h"
#include "pages/inputs/Katodex.h"
#include "pages/inputs/SampleRate.h"
#include "pages/timers/CTimer.h"
#include "pages/timers/LTimer.h"
#include "pages/timers/MTimer.h"
#include "pages/timers/WTimer.h"
#include "platform/Dialogs.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "shell/session/TransferBar.h"

namespace ostrel {
namespace {

std::vector<std::unique_ptr<Page>> MakePages(PageContext& context) {
  std::vector<std::unique_ptr<Page>> pages;
  pages.push_back(std::make_unique<General>(context));
  pages.push_back(std::make_unique<E_Digital>(context));
  pages.push_back(std::make_unique<E_Analog>(context));
  pages.push_back(std::make_unique<Grupos>(context));
  pages.push_back(std::make_unique<Caudal>(context));
  pages.push_back(std::make_unique<SampleRate>(context));
  pages.push_back(std::make_unique<Flags>(context));
  pages.push_back(std::make_unique<E_OneWire>(context));
  pages.push_back(std::make_unique<E_Math>(context));
  pages.push_back(std::make_unique<CONF_MODBUS>(context));
  pages.push_back(std::make_unique<E_MODBUS>(context));
  pages.push_back(std::make_unique<E_Modular>(context));
  pages.push_back(std::make_unique<CTimer>(context));
  pages.push_back(std::make_unique<LTimer>(context));
  pages.push_back(std::make_unique<WTimer>(context));
  pages.push_back(std::make_unique<MTimer>(context));
  pages.push_back(std::make_unique<E_Aux>(context));
  pages.push_back(std::make_unique<Katodex>(context));
  pages.push_back(std::make_unique<Macros>(context));
  pages.push_back(std::make_unique<GPRS>(context));
  pages.push_back(std::make_unique<Aut_Voz>(context));
  return pages;
}

}  // namespace

Configurator::Configurator(const Platform& platform, ConfiguratorOptions options)
    : settings(platform.settings),
      ownLang_(options.lang ? nullptr : std::make_unique<Lang>(platform.files, options.langFile)),
      lang(options.lang ? *options.lang : *ownLang_),
      iniTool(platform.files),
      context{.platform = platform_,
              .lang = lang,
              .iniTool = iniTool,
              .conf = conf,
              .profile = profile,
              .info = info,
              .live = live,
              .totals = totals,
              .ActionBuffer = ActionBuffer,
              .Connected = Connected,
              .ComBusy = ComBusy,
              .ConfFilePath = ConfFilePath,
              .timersRun = options.ticking,
              .programFolder = options.programFolder},
      ledger({platform_, conf, received, profile, info}),
      platform_(platform),
      options_(std::move(options)),
      pages_(MakePages(context)),
      general(static_cast<General&>(*pages_.front())),
      comms(platform_, {profile, info, live, totals, ComBusy}, MakeHooks()),
      book_(comms.OnProgress([this](const Progress& progress) { ledger.Follow(progress); })),
      bar_(comms.OnProgress(
          [&bar = general.Session().PBar](const Progress& progress) { ShowOnBar(progress, bar); })),
      voiceBar_(
          comms.OnProgress([&bar = PageOf(PageId::Aut_Voz)->GetForm().Get<ProgressBar>("PBar")](
                               const Progress& progress) { ShowListOnBar(progress, bar); })),
      session(context, comms, general, Connected, received, [this] { ShowPages(); }),
      tools{.platform = platform_,
            .comms = comms,
            .dialogs = platform_.dialogs,
            .profile = profile,
            .totals = totals,
            .Connected = Connected,
            .live = live,
            .info = info,
            .conf = conf,
            .ConfFilePath = ConfFilePath,
            .Translate = [this](std::string_view text) { return context.Translate(text); },
            .ShowHelp = [this](std::string_view word) { context.ShowHelp(word); },
            .IniCom_Click = [this] { general.Session().IniCom_Click(); },
            .SendFirmware =
                [this](const FirmwareFiles& files, const FirmwareDialogue::OnStage& onStage) {
                  return session.SendFirmware(files, onStage);
                },
            .OpenLog = options_.openLog,
            .OpenRecording = options_.openRecording},
      actEdit(context),
      livePoll(tools),
      recorder(tools, livePoll),
      monitor(tools, livePoll, recorder),
      cathodicMonitor(tools, livePoll, recorder),
      setTotal(tools, kMainCounters),
      expSetTotal(tools, kExpansionCounters),
      ayuda(tools),
      ayudaHex(tools),
      pwForm(context),
      langForm(context),
      targetSelect(context, settings,
                   [this](const std::string& name) { TargetDeviceChange(name); }),
      firm(tools),
      terminal(tools),
      test(TestParts(), kTest),
      testKA2(TestParts(), kTestKA2),
      testBQ(TestParts(), kTestBQ),
      fronts_{{ToolId::TargetSelect, &targetSelect},
              {ToolId::T_Real_Tavro, &monitor},
              {ToolId::T_Real_Katodex, &cathodicMonitor},
              {ToolId::Firm, &firm},
              {ToolId::Terminal, &terminal},
              {ToolId::Test, &test},
              {ToolId::TestKA2, &testKA2},
              {ToolId::TestBQ, &testBQ}} {
  if (options_.ticking) general.OnScanPorts = [this] { comms.ScanPorts(); };
  ConnectPages();
  RegisterWire();
}

Configurator::~Configurator() = default;

void Configurator::ConnectPages() {
  // A dialog that asks the logger cannot stand within a reading, which would wait for its end.
  const auto setsTotal = [this](SetTotal& dialog, std::function<void()> behind) {
    return [this, &dialog, behind = std::move(behind)](std::int16_t index) {
      context.WhenFree([&dialog, behind, index] {
        dialog.SetIndex(index);
        dialog.ShowModal();
        if (behind) behind();
      });
    };
  };
  context.whenFree = [this](std::function<void()> action) {
    comms.Reading().WhenFree(std::move(action));
  };
  // A test run has the session, up to its end; the terminal shows what arrives by itself, which a
  // round would take; an update must not find the line taken.
  livePoll.Rests = [this] {
    return session.IsLent() || general.Session().IniRequest || terminal.IsInFront() ||
           firm.IsInFront();
  };
  context.showActEdit = [this](std::string_view subject) { actEdit.ShowModal(subject); };
  context.showTotal = setsTotal(setTotal, nullptr);
  context.showExpansionTotal = setsTotal(expSetTotal, [this] {
    // The total of an expansion counter comes with the live values alone.
    if (Connected) comms.ReadRealTime();
  });
  context.showPulseCalculator = [this](TextBox& field) { ayuda.ShowModal(field); };
  context.showMaskCalculator = [this] { ayudaHex.ShowModal(); };
  context.readProbeIdentity = [this]() -> std::optional<ProbeIdentity> {
    ProbeIdentity identity;
    if (!comms.ReadProbeIdentity(identity)) return {};
    return identity;
  };
  context.readVoiceList = [this](ConfAutVoz& list) { return session.ReadVoiceList(list); };
  context.writeVoiceList = [this](const ConfAutVoz& list) { return session.WriteVoiceList(list); };
}

TestPageContext Configurator::TestParts() {
  return {.bench = Bench(),
          .Connected = Connected,
          .usual = options_.station,
          .IniCom_Click = [this] { general.Session().IniCom.Click(); },
          .mayLend = [this] { return session.MayLend(); },
          .lendSession = [this](bool lent) { session.Lend(lent); },
          .closeLent = [this] { session.CloseLent(); }};
}

TestPage* Configurator::RunningTest() {
  for (TestPage* page : {&test, &testKA2, &testBQ})
    if (page->Running()) return page;
  return nullptr;
}

LinkHooks Configurator::MakeHooks() {
  SessionFrame& frame = general.Session();
  return {
      .clearPages = [this] { EmptyReceived(); },
      .beginStream =
          [this] {
            for (const Block& block : Blocks())
              if (block.beginStream) block.beginStream(*received);
          },
      .loadPages =
          [this] {
            if (received != &conf) return;
            origin_ = {.isKnown = true};
            ForEach(kLoadAfterDownload, &Page::LoadData);
          },
      .composed =
          [this] {
            session.KeepSent();
            ledger.Composed();
          },
      .infoChanged =
          [this](std::string_view key) {
            general.ShowInfo(key);
            session.NoteInfo();
            ledger.InfoChanged(key);
          },
      .showPWForm = [this] { AskCode(); },
      .carrierLost = [this] { ShowCarrierLost(); },
      .portFound = [&frame](std::string_view name) { frame.Puerto.Add(name); },
      .deedBegins = [this](const LinkDeed& deed) { ledger.DeedBegins(deed); },
      .deedEnds = [this](const LinkDeed& deed,
                         const LinkFault& fault) { ledger.DeedEnds(deed, fault); },
      .sessionEnds = [this](const LinkFault& fault) { ledger.SessionEnds(fault); },
  };
}

void Configurator::EmptyReceived() {
  if (received == &conf)
    ForEach(kClearAtDownload, &Page::Clear);
  else
    *received = EmptyConfiguration(
        profile, [this](std::string_view text) { return context.Translate(text); });
}

void Configurator::RegisterWire() {
  std::vector<WireSection> sections;
  for (const Block& block : Blocks())
    for (const LineSection& line : block.lines)
      sections.push_back({line.key, [this, read = line.read](LineReader& reader) {
                            read(reader, *received, info);
                          }});
  std::vector<WireBlock> blocks;
  for (const UploadStep& step : UploadOrder())
    blocks.push_back({step.name, [this, &step](StatementList& out) {
                        ComposeStep(step, conf, {profile, info.Features}, out);
                      }});
  comms.SetWire(std::move(sections), std::move(blocks));
}

void Configurator::AskCode() {
  const std::string prompt = context.Translate("Introduzca la clave de acceso:");
  std::string code;
  do {
    code = platform_.dialogs.AskCode(prompt);
  } while (!code.empty() && !CheckCode(context, code));
  session.CodeAsked(!code.empty());
  comms.AccessCode = std::move(code);
}

void Configurator::ShowCarrierLost() {
  if (carrierBoxUp_) return;  // a flapping signal must not stack boxes
  const Lent up(carrierBoxUp_, true);
  platform_.dialogs.ShowMessage(
      {.text = context.Translate("Se corto la comunicacion"), .title = profile.TargetName});
}

void Configurator::ForEach(std::span<const PageId> order, void (Page::*action)()) {
  for (const PageId id : order)
    if (Page* page = PageOf(id)) (page->*action)();
}

void Configurator::ShowPages() {
  for (const auto& page : pages_) page->LoadData();
}

void Configurator::ShowConfiguration(const DeviceConf& shown) {
  conf = shown;
  ShowPages();
}

Page* Configurator::PageOf(PageId id) const {
  for (const auto& page : pages_)
    if (page->Id() == id) return page.get();
  return nullptr;
}

FrontForm* Configurator::ToolOf(ToolId id) const {
  const auto found = std::ranges::find(fronts_, id, &std::pair<ToolId, FrontForm*>::first);
  return found == fronts_.end() ? nullptr : found->second;
}

std::vector<Form*> Configurator::Forms() {
  std::vector<Form*> forms;
  for (const auto& page : pages_) forms.push_back(&page->GetForm());
  for (Form* form : {&actEdit.GetForm(), &setTotal.GetForm(), &expSetTotal.GetForm(),
                     &ayuda.GetForm(), &ayudaHex.GetForm(), &pwForm.GetForm(), &langForm.GetForm()})
    forms.push_back(form);
  for (const auto& [id, front] : fronts_) forms.push_back(&front->GetForm());
  return forms;
}

void Configurator::TargetDeviceChange(const std::string& name) {
  SelectTarget(profile, name);
  if (OnTargetChanged) OnTargetChanged();
  general.LoadMaskSelection();
  mainCaption_ = std::string(kMaker) + " " + profile.TargetName + " v" +
                 std::to_string(options_.versionMajor) + "." +
                 std::to_string(options_.versionMinor);
}

void Configurator::LoadForms() {
  for (const auto& page : pages_) page->Form_Load();
  for (const auto& [id, front] : fronts_) front->Form_Load();
}

void Configurator::Start(const std::string& commandLine) {
  Universal = true;
  ComBusy = false;
  lang.Init();
  const std::string idioma = settings.Idioma();
  if (idioma.empty() || settings.ComPort().empty()) {
    settings.SetComPort("1");
    if (langForm.AskUser() || idioma.empty())
      settings.SetIdioma(std::to_string(lang.SelectedLang()));
    keepsStoredLanguage_ = true;
  }
  // A language chosen at the first run applies from the next start on.
  lang.SetSelectedLang(RoundToEven<std::int16_t>(NumVal(idioma)).value_or(0));
  std::string target = settings.Target();
  if (target.empty()) {
    platform_.dialogs.ShowMessage(
        {.text = context.Translate("Esta version del configurador es universal. Seleccione en "
                                   "'Dispositivo' el modelo que desea configurar."),
         .title = context.Translate("Seleccion del modelo"),
         .icon = BoxIcon::Information});
    target = TargetNamesOffered().front();
  }
  TargetDeviceChange(target);
  LoadForms();
  ForEach(kClearAtStart, &Page::Clear);
  if (!commandLine.empty()) {
    ConfFilePath = commandLine.size() > 2 ? commandLine.substr(1, commandLine.size() - 2) : "";
    RestoreConf();
  }
}

void Configurator::StartForCommand(std::string_view target, std::int16_t language) {
  if (ownLang_) {
    lang.Init();
    lang.SetSelectedLang(language);
  }
  const TargetModel* model = FindTarget(target);
  TargetDeviceChange(std::string(model ? model->name : target));
  LoadForms();
  ForEach(kClearAtStart, &Page::Clear);
}

void Configurator::ShutDown() {
  const std::string port = general.Session().Puerto.Text();
  settings.SetComPort(port.size() > 3 ? port.substr(3, 3) : "");
  if (!keepsStoredLanguage_) settings.SetIdioma(std::to_string(lang.SelectedLang()));
  comms.Abort();
}

void Configurator::AskLanguage() {
  if (!langForm.AskUser()) return;
  keepsStoredLanguage_ = false;
  LoadText();
}

void Configurator::LoadText() {
  for (const auto& page : pages_) page->LoadText();
  for (const auto& [id, front] : fronts_) front->LoadText();
}

}  // namespace ostrel
