#include "desktop/window/Overview.h"

#include "desktop/window/FaultText.h"
#include "desktop/window/FieldText.h"
#include "shell/Configurator.h"
#include "shell/Navigation.h"

namespace ostrel {
namespace {

/// The rules that look at the text of a file.
const std::vector<std::string> kRulesOnFiles{"section-missing", "key-missing", "value-cut",
                                             "value-misread"};

}  // namespace

int ShownConfig(const Form& form) {
  for (int config = 1; config < 4; ++config) {
    const std::string option = "Config" + std::to_string(config);
    if (form.Contains(option) && form.Get<OptionButton>(option).Selected()) return config;
  }
  return 0;
}

void Overview::Look() {
  if (parts_.configurator.session.OwnsModel()) return;
  const unsigned touches = parts_.unsaved.Touches();
  if (seen_ == touches) return;
  const bool isFirst = !seen_;
  seen_ = touches;
  DeviceConf present = parts_.unsaved.WithFront();
  if (isFirst || !(present == present_) || !(parts_.unsaved.Kept() == kept_)) {
    present_ = std::move(present);
    kept_ = parts_.unsaved.Kept();
    Examine();
  }
  ShowFront();
}

void Overview::Examine() {
  const Configurator& core = parts_.configurator;
  const auto translate = [&core](std::string_view text) { return core.context.Translate(text); };
  const ModelConfiguration configuration{core.profile, present_};
  const IniClass noFile(core.context.platform.files);
  const std::optional<std::int32_t> features =
      core.Connected ? std::optional(core.info.Features) : std::nullopt;
  found_ = ostrel::Examine(Examined(configuration, features, noFile, translate), kRulesOnFiles);
  const std::vector<ConstField> fields =
      found_.empty() ? std::vector<ConstField>() : FieldsOf(std::as_const(present_), core.profile);
  placed_.clear();
  for (const auto& [rule, finding] : found_) {
    PlacedFinding placed{rule->severity, finding};
    if (const auto field = FieldOf(finding, fields)) {
      placed.page = field->page;
      placed.field = field->id;
      placed.where = Capitalised(RecordText(field->id));
      placed.what = Capitalised(FieldName(field->id, field->meta));
    }
    placed_.push_back(std::move(placed));
  }
  parts_.findings.ShowFindings(placed_);
  parts_.tree.Decorate(FactsOfNodes(configuration, kept_, found_));
}

void Overview::ShowNode(const std::string& node) {
  node_ = node;
  seen_.reset();
  Look();
}

void Overview::ShowFront() {
  const Configurator& core = parts_.configurator;
  if (!parts_.group.isHidden())
    parts_.group.ShowGroup(
        parts_.tree.TextOf(node_),
        TableOfGroup(node_, {core.profile, present_},
                     [this](std::string_view key) { return parts_.tree.Has(key); }),
        core.profile.IsS100);
  FormView* front = parts_.pages.Front();
  if (!front) return;
  const Form& form = front->GetForm();
  const int config = ShownConfig(form);
  std::map<std::string, QString, std::less<>> notes;
  for (const PlacedFinding& placed : placed_) {
    Page* page = placed.page ? core.PageOf(*placed.page) : nullptr;
    if (!page || &page->GetForm() != &form) continue;
    if (placed.field->slot.config >= 0 && placed.field->slot.config != config) continue;
    if (NodeOf(*placed.page, placed.field->channel) != node_) continue;
    const std::string control = ControlOf(form, *placed.field);
    if (control.empty()) continue;
    QString& note = notes[control];
    if (!note.isEmpty()) note += u'\n';
    note += SentenceOf(placed.finding.sentence);
  }
  front->SetNotes(std::move(notes));
}

}  // namespace ostrel
