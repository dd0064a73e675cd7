#include "pages/expansion/E_Modular.h"

#include <array>

#include "blocks/expansion/ExpansionInputs.h"

namespace ostrel {
namespace {

constexpr std::string_view kInputTitle = "Canal ";

/// Notes at the controls of each tab in which section of a file their fields stand.
void NoteSections(Form& form) {
  constexpr std::array<std::pair<std::string_view, const SectionMeta*>, 5> kSections{{
      {"D_", &ExpansionInputs::kDigital},
      {"Q_", &ExpansionInputs::kFlow},
      {"C_", &ExpansionInputs::kCounter},
      {"A_", &ExpansionInputs::kAnalog},
      {"", &ExpansionInputs::kFrame},
  }};
  for (const ControlRef& control : form.Controls()) {
    Face& face = FaceOf(control);
    EditedField field = face.Field();
    for (const auto& [prefix, section] : kSections)
      if (field.section.empty() && face.Name().starts_with(prefix)) field.section = section->word;
    face.SetField(field);
  }
}

}  // namespace

E_Modular::E_Modular(PageContext& context)
    : context_(context),
      form_("E_Modular", "Expansiones"),
      frame_(form_),
      digital_(form_, context),
      flow_(form_, context),
      counter_(form_, context),
      analog_(form_, context),
      help_(form_, "Help", ""),
      Timer1_(form_, "Timer1", context.platform.loop, std::chrono::seconds(1)) {
  NoteSections(form_);
  digital_.OnActions = [this](auto list) { EditActionsOf<&ConfModulo::D>(list, digital_); };
  flow_.OnActions = [this](auto list) { EditActionsOf<&ConfModulo::Q>(list, flow_); };
  analog_.OnActions = [this](auto list) { EditActionsOf<&ConfModulo::A>(list, analog_); };
  counter_.OnModify = [this] {
    if (context_.showExpansionTotal) context_.showExpansionTotal(CurrentIndex_);
    counter_.ShowTotal(CurrentIndex_);
  };
  frame_.OnChosen = [this] { ShowShared(); };
  frame_.OnFindFree = [this] {
    frame_.SetPlace(ExpansionInputs::NextFree(context_.conf, frame_.Place(), CurrentIndex_));
  };
  help_.OnClick = [this] { ShowHelp(); };
  Timer1_.OnTimer = [this] { Tick(); };
}

void E_Modular::LoadText() {
  form_.TranslateCaptions([this](std::string_view key) { return context_.Translate(key); });
  frame_.SetTitle(context_.Translate(kInputTitle) + NumText(CurrentIndex_));
}

void E_Modular::ChangeIndex(std::int16_t index) {
  Commit();
  if (index < 0 || index >= ExpansionInputs::kInputs) return;
  CurrentIndex_ = index;
  Form_Load();
}

void E_Modular::Form_Load() {
  digital_.Form_Load();
  flow_.Form_Load();
  analog_.Form_Load();
  LoadText();
  LoadData();
  RepaintTree();
  Timer1_.SetEnabled(context_.timersRun);
}

void E_Modular::Clear() {
  ClearBlock(context_, Id());
  LoadData();
}

void E_Modular::LoadData() {
  const ConfModulo& input = Current();
  frame_.Load(input);
  digital_.LoadData(input.D);
  flow_.LoadData(input.Q);
  counter_.Load(input.C);
  counter_.ShowTotal(CurrentIndex_);
  analog_.LoadData(input.A);
  ShowShared();
}

void E_Modular::ShowShared() {
  const int other = frame_.Mode() > kModeOff
                        ? ExpansionInputs::OtherUser(context_.conf, frame_.Place(), CurrentIndex_)
                        : -1;
  frame_.SetShared(
      other < 0 ? "" : context_.Translate("Esta entrada la usa tambien el canal") + NumText(other));
}

void E_Modular::RestoreConf() {
  Clear();
  ReadBlockKeys(context_, Id());
  LoadData();
  RepaintTree();
}

void E_Modular::SaveInto(DeviceConf& conf) const {
  ConfModulo& input = conf.Modulo[CurrentIndex_];
  frame_.Save(input);
  digital_.Save(input.D);
  flow_.Save(input.Q);
  counter_.Save(input.C);
  analog_.Save(input.A);
}

void E_Modular::Commit() {
  if (!context_.ComBusy) SavePage();
}

void E_Modular::Tick() {
  flow_.Tick();
  counter_.ShowTotal(CurrentIndex_);
  CheckNumbers();
  RepaintTree();
}

void E_Modular::CheckNumbers() {
  digital_.CheckNumbers();
  flow_.CheckNumbers();
  counter_.CheckNumbers();
  analog_.CheckNumbers();
}

void E_Modular::RepaintTree() const {
  if (context_.repaintTree) context_.repaintTree();
}

template <auto kPart, class Tab>
void E_Modular::EditActionsOf(ActionList AlarmBlock::*list, Tab& tab) {
  auto& record = Current().*kPart;
  std::string subject = context_.Translate(kInputTitle) + NumText(CurrentIndex_);
  if (const std::string name = tab.NameOf(record); !name.empty()) subject += " \"" + name + '"';
  context_.EditActions(record.ALARM[0].common.*list, subject + ", " + tab.CaptionOf(list),
                       [&tab, &record] { tab.ShowActionCounts(record); });
}

void E_Modular::ShowHelp() const {
  constexpr std::array<std::string_view, 5> kHelpWords{"ExpNone", "ExpDigital", "ExpFlow",
                                                       "ExpCounter", "ExpAnalog"};
  context_.ShowHelp(kHelpWords.at(static_cast<std::size_t>(std::max(frame_.Mode(), 0))));
}

}  // namespace ostrel
