#include "shell/navigation/Navigation.h"

#include <algorithm>
#include <array>

#include "shell/Configurator.h"
#include "shell/words/TimerGroups.h"

namespace ostrel {
namespace {

/// Keys that stand for one page as they are.
struct PlainRow {
  std::string_view key;
  NodeTarget target;
};

constexpr std::array<PlainRow, 10> kPlain{{
    {"Caudal", {PageId::SampleRate, {}}},
    {"General", {PageId::General, std::int16_t{0}}},
    {"Grupos", {PageId::Grupos, {}}},
    {"MODBUS", {PageId::CONF_MODBUS, {}}},
    {"Aut_Voz", {PageId::Aut_Voz, {}}},
    {"GPRS", {PageId::GPRS, {}}},
    {"Macros", {PageId::Macros, {}}},
    {"Firmware", {ToolId::Firm, {}}},
    {"Terminal", {ToolId::Terminal, {}}},
    {"PCAT", {PageId::Katodex, {}}},
}};

/// Keys of a stem and a channel number.
struct NumberedRow {
  std::string_view stem;
  PageId page;
  int last;
};

constexpr std::array<NumberedRow, 9> kNumbered{{
    {"E_Analog_", PageId::E_Analog, 3},
    {"E_OneWire_", PageId::E_OneWire, 3},
    {"E_Math_", PageId::E_Math, 3},
    {"Caudal_", PageId::Caudal, 7},
    {"E_Digital_", PageId::E_Digital, 8},
    {"MODBUS_", PageId::E_MODBUS, 31},
    {"Flag_", PageId::Flags, 15},
    {"E_Aux_", PageId::E_Aux, 3},
    {"Modulo_", PageId::E_Modular, 95},
}};

constexpr std::array<std::pair<std::string_view, PageId>, 4> kTimerPages{
    {{"CTimer", PageId::CTimer},
     {"WTimer", PageId::WTimer},
     {"MTimer", PageId::MTimer},
     {"LTimer", PageId::LTimer}}};

std::optional<NodeTarget> FindNumbered(std::string_view key) {
  for (const auto& [stem, page, last] : kNumbered) {
    if (!key.starts_with(stem)) continue;
    const std::string_view digits = key.substr(stem.size());
    for (int number = 0; number <= last; ++number)
      if (digits == std::to_string(number))
        return NodeTarget{page, static_cast<std::int16_t>(number)};
  }
  return {};
}

std::optional<NodeTarget> FindTimers(std::string_view key) {
  for (const auto& [stem, page] : kTimerPages) {
    if (!key.starts_with(stem)) continue;
    for (const TimerGroup& group : kTimerGroups)
      if (key.substr(stem.size()) == group.keyEnd) return NodeTarget{page, group.first};
  }
  return {};
}

std::optional<NodeTarget> FindByModel(std::string_view key, const TargetProfile& model) {
  if (key == "T_Real") {
    if (model.IsBP || model.IsVR200 || model.IsKA2 || model.IsKA1 || model.IsBQ || model.IsS100)
      return NodeTarget{ToolId::T_Real_Tavro, {}};
  } else if (key == "TEST") {
    if (model.IsBP) return NodeTarget{ToolId::Test, {}};
    if (model.IsBQ) return NodeTarget{ToolId::TestBQ, {}};
    if (model.IsKA2) return NodeTarget{ToolId::TestKA2, {}};
  }
  return {};
}

}  // namespace

std::optional<NodeTarget> FindNodeTarget(std::string_view key, const TargetProfile& model,
                                         bool universal) {
  if (key == "Tavro") {
    if (universal) return NodeTarget{ToolId::TargetSelect, {}};
    return {};
  }
  for (const PlainRow& row : kPlain)
    if (row.key == key) return row.target;
  if (const auto numbered = FindNumbered(key)) return numbered;
  if (const auto timers = FindTimers(key)) return timers;
  return FindByModel(key, model);
}

std::string NodeOf(PageId page, int channel) {
  for (const PlainRow& row : kPlain)
    if (row.target.form == FormId(page)) return std::string(row.key);
  for (const auto& [stem, form, last] : kNumbered)
    if (form == page && channel >= 0 && channel <= last)
      return std::string(stem) + std::to_string(channel);
  for (const auto& [stem, form] : kTimerPages)
    for (const TimerGroup& group : kTimerGroups)
      if (form == page && channel >= group.first && channel < group.first + kTimersAtOnce)
        return std::string(stem) + std::string(group.keyEnd);
  return {};
}

std::optional<PageId> PageOfGroup(std::string_view key) {
  for (const auto& [stem, page, last] : kNumbered)
    if (stem == std::string(key) + "_" || (key == "Flags" && page == PageId::Flags)) return page;
  for (const auto& [stem, page] : kTimerPages)
    if (stem == key) return page;
  return {};
}

Navigation::Navigation(Configurator& configurator, std::span<const FormId> staysOpen)
    : configurator_(configurator), staysOpen_(staysOpen) {
  configurator_.OnTargetChanged = [this] {
    if (OnTargetChanged) OnTargetChanged();
    if (isActive_) Activate();
  };
}

Navigation::~Navigation() { configurator_.OnTargetChanged = nullptr; }

NodeResult Navigation::NodeClick(std::string_view key) {
  if (configurator_.session.State().phase == SessionPhase::Updating) return NodeResult::Rests;
  Hide();
  const NodeResult result = Open(key);
  Settle();
  return result;
}

NodeResult Navigation::Open(std::string_view key) {
  const auto target = FindNodeTarget(key, configurator_.profile, configurator_.Universal);
  if (!target) return NodeResult::Nothing;
  if (Page* page = PageOf(target->form); page && target->index) page->ChangeIndex(*target->index);
  Show(target->form);
  return NodeResult::Shown;
}

void Navigation::HideAll() {
  Hide();
  Settle();
}

bool Navigation::ShowForm(FormId id) {
  if (!FormOf(id)) return false;
  Show(id);
  Settle();
  return true;
}

void Navigation::CommitFront() {
  Page* page = FrontPage();
  if (page && !configurator_.ComBusy) page->SavePage();
}

Form* Navigation::Front() const { return open_.empty() ? nullptr : FormOf(open_.back()); }

Page* Navigation::FrontPage() const { return open_.empty() ? nullptr : PageOf(open_.back()); }

/// The page; null for a tool.
Page* Navigation::PageOf(FormId id) const {
  const PageId* page = std::get_if<PageId>(&id);
  return page ? configurator_.PageOf(*page) : nullptr;
}

/// What else the tree opens; null for a page.
FrontForm* Navigation::ToolOf(FormId id) const {
  const ToolId* tool = std::get_if<ToolId>(&id);
  return tool ? configurator_.ToolOf(*tool) : nullptr;
}

Form* Navigation::FormOf(FormId id) const {
  if (Page* page = PageOf(id)) return &page->GetForm();
  FrontForm* tool = ToolOf(id);
  return tool ? &tool->GetForm() : nullptr;
}

bool Navigation::StaysOpen(FormId id) const {
  return std::ranges::find(staysOpen_, id) != staysOpen_.end();
}

/// Hides what does not stay open. A page that stays keeps the front if it has it.
void Navigation::Hide() {
  if (!open_.empty() && !StaysOpen(open_.back())) Deactivate();
  std::erase_if(open_, [this](FormId id) {
    if (StaysOpen(id)) return false;
    FormOf(id)->Hide();
    return true;
  });
}

/// Puts a form above all others, without activating it.
void Navigation::Show(FormId id) {
  if (!open_.empty() && open_.back() != id) Deactivate();
  std::erase(open_, id);
  open_.push_back(id);
  FormOf(id)->Show();
}

/// Activates what has come to the front.
void Navigation::Settle() {
  if (!open_.empty() && !isActive_) Activate();
  if (OnFrontChanged) OnFrontChanged();
}

void Navigation::Activate() {
  isActive_ = true;
  if (Page* page = FrontPage())
    page->Form_Activate();
  else if (FrontForm* tool = ToolOf(open_.back()))
    tool->Form_Activate();
}

/// Takes the front from the form that has it, which stays shown until it is hidden.
void Navigation::Deactivate() {
  if (!isActive_) return;
  isActive_ = false;
  if (Page* page = FrontPage())
    page->Form_Deactivate();
  else if (FrontForm* tool = ToolOf(open_.back()))
    tool->Form_Deactivate();
}

}  // namespace ostrel
