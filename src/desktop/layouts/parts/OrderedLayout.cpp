#include <QLabel>
#include <optional>
#include <vector>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/AlarmPanelLayout.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

/// Draws a form from its controls in the order in which they were made: a frame begins a box, a
/// label stands beside the field that follows it, options of one run share a row, and so do
/// buttons.
class OrderedLayout {
 public:
  explicit OrderedLayout(FormView& view) : view_(view), page_(MakeSheet(view)) {}

  void Draw() {
    for (const ControlRef& control : view_.GetForm().Controls()) {
      // What a part has drawn already, or the sheet.
      if (view_.WidgetOf(FaceOf(control).Name())) continue;
      if (FaceOf(control).Name() == "AlarmaHabil" || FaceOf(control).Name() == "Config0")
        DrawAlarm();
      else
        std::visit([this](auto* typed) { Add(*typed); }, control);
    }
    EndRun();
    page_->addStretch(1);
  }

 private:
  void Add(Timer&) {}
  void Add(TabStrip&) {}  // what stands on its tabs is drawn in order
  void Add(Frame& frame) {
    EndRun();
    card_ = MakeCard(view_, frame.face.Name());
    page_->addWidget(card_->box);
    card_->grid->setColumnStretch(1, 1);
  }
  void Add(Label& label) {
    EndRun();
    label_ = label.face.Name();
  }
  void Add(Button& button) { AddToRun(button.face, Run::Buttons); }
  void Add(OptionButton& option) { AddToRun(option.face, Run::Options); }
  void Add(CheckBox& box) {
    EndRun();
    Grid().addWidget(view_.Show(box.face.Name()), Grid().rowCount(), 0, 1, 2);
  }
  template <class Control>
  void Add(Control& field) {
    const std::string& name = field.face.Name();
    if (run_ != Run::None) EndRun();
    const QString words = ToQt(name);
    QLabel* label = label_.empty() ? view_.LabelFor(name, words + ":")
                                   : view_.LabelFor(name, std::string_view(label_));
    label_.clear();
    AddField(Here(), label, view_.Show(name));
  }

  enum class Run { None, Options, Buttons };
  /// A run of options or buttons grows until something else comes.
  void AddToRun(const Face& face, Run kind) {
    if (run_ != kind) EndRun();
    run_ = kind;
    if (face.Key().empty() && kind == Run::Buttons)
      view_.ShowWithWords(face.Name(), ToQt(face.Name()));
    inRun_.push_back(view_.Show(face.Name()));
  }
  void EndRun() {
    if (!label_.empty()) {
      Grid().addWidget(view_.Show(label_), Grid().rowCount(), 0, 1, 2);
      label_.clear();
    }
    if (run_ == Run::None) return;
    auto* box = new QWidget(&view_);
    auto* row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : inRun_) row->addWidget(widget);
    row->addStretch(1);
    Grid().addWidget(box, Grid().rowCount(), 0, 1, 2);
    inRun_.clear();
    run_ = Run::None;
  }

  /// The alarm block has a layout of its own. Thresholds without a label go by their names.
  void DrawAlarm() {
    EndRun();
    std::vector<ThresholdWords> thresholds;
    for (const auto* name : {"Minimo", "Maximo", "Histeresis", "Persist", "Rearm"}) {
      if (!view_.Has(name)) continue;
      const bool hasLabel = view_.Has("Label" + std::string(name));
      thresholds.push_back({name, hasLabel ? QString() : QString(name) + ":"});
    }
    page_->addWidget(LayOutAlarmPanel(view_, thresholds));
  }

  const Card& Here() {
    if (!card_) {
      card_ = MakeCard(view_, QString());
      page_->addWidget(card_->box);
      card_->grid->setColumnStretch(1, 1);
    }
    return *card_;
  }
  QGridLayout& Grid() { return *Here().grid; }

  FormView& view_;
  QVBoxLayout* page_;
  std::optional<Card> card_;
  std::string label_;  ///< a label that waits for its field
  Run run_ = Run::None;
  std::vector<QWidget*> inRun_;
};

}  // namespace

void LayOutInOrder(FormView& view) { OrderedLayout(view).Draw(); }

}  // namespace ostrel
