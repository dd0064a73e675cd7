#include "desktop/dialogs/CompareWindow.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/dialogs/CompareDialog.h"
#include "desktop/forms/Words.h"

namespace ostrel {

CompareWindow::CompareWindow(CompareSources sources, QWidget* parent)
    : QDialog(parent),
      sources_(std::move(sources)),
      summary_(new QLabel(this)),
      tree_(new ComparisonTree(this)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName("CompareWindow");
  setWindowTitle(Words::tr("Compare"));
  resize(900, 560);
  summary_->setObjectName("Summary");
  summary_->setWordWrap(true);
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeChoice());
  column->addWidget(summary_);
  column->addWidget(tree_, 1);
  column->addWidget(MakeTakeOver());
  tree_->OnField = [this](PageId page, const FieldId& field) { sources_.goTo(page, field); };
  connect(tree_, &QTreeWidget::itemSelectionChanged, this,
          [this] { takeSelected_->setEnabled(Source() && !tree_->selectedItems().isEmpty()); });
  offers_ = {{Kind::Pages}, {Kind::Logger}};
  for (const std::string& file : sources_.files) offers_.push_back({Kind::File, file});
  for (const std::string& copy : sources_.copies) offers_.push_back({Kind::Copy, copy});
  offers_.push_back({Kind::Browse});
  sides_[0].chosen = {Kind::Pages};
  Load(sides_[0]);
  FillBoxes();
  Compare();
}

QWidget* CompareWindow::MakeChoice() {
  auto* place = new QWidget(this);
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  const std::array<QString, 2> names{Words::tr("&Compare"), Words::tr("&with")};
  for (std::size_t i = 0; i < sides_.size(); ++i) {
    auto* box = new QComboBox(place);
    box->setObjectName(QString("Side%1").arg(i));
    box->setPlaceholderText(Words::tr("Choose"));
    auto* label = new QLabel(names[i], place);
    label->setBuddy(box);
    row->addWidget(label);
    row->addWidget(box, 1);
    sides_[i].box = box;
    connect(box, &QComboBox::activated, this, [this, i](int chosen) { Choose(sides_[i], chosen); });
  }
  return place;
}

QWidget* CompareWindow::MakeTakeOver() {
  auto* place = new QWidget(this);
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  takeSelected_ = new QPushButton(Words::tr("&Take the selected over into the pages"), place);
  takeSelected_->setObjectName("TakeSelected");
  takeAll_ = new QPushButton(Words::tr("Take &all over into the pages"), place);
  takeAll_->setObjectName("TakeAll");
  auto* close = new QPushButton(Words::tr("Close"), place);
  for (QPushButton* button : {takeSelected_, takeAll_, close}) button->setAutoDefault(false);
  connect(takeSelected_, &QPushButton::clicked, this, [this] { TakeOver(tree_->Selected()); });
  connect(takeAll_, &QPushButton::clicked, this, [this] {
    std::vector<const Difference*> all;
    for (const Difference& one : tree_->Differences()) all.push_back(&one);
    TakeOver(all);
  });
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  row->addWidget(takeSelected_);
  row->addWidget(takeAll_);
  row->addStretch(1);
  row->addWidget(close);
  return place;
}

QString CompareWindow::TextOf(const Offer& offer) const {
  const QString name = QFileInfo(ToQt(offer.path)).completeBaseName();
  switch (offer.kind) {
    case Kind::None:
      return {};
    case Kind::Pages:
      return Words::tr("the pages");
    case Kind::Logger:
      return Words::tr("the logger");
    case Kind::File:
      return QFileInfo(ToQt(offer.path)).fileName();
    case Kind::Copy:
      return Words::tr("safety copy %1").arg(name);
    case Kind::Browse:
      return Words::tr("another file...");
  }
  return {};
}

void CompareWindow::FillBoxes() {
  for (Side& side : sides_) {
    side.box->clear();
    int chosen = -1;
    for (const Offer& offer : offers_) {
      if (offer.kind == side.chosen.kind && offer.path == side.chosen.path)
        chosen = side.box->count();
      side.box->addItem(TextOf(offer));
    }
    side.box->setCurrentIndex(chosen);
  }
}

void CompareWindow::ShowFile(const std::string& path) {
  const auto isHere = [&](const Offer& offer) { return offer.path == path; };
  if (std::ranges::none_of(offers_, isHere))
    offers_.insert(offers_.end() - 1, Offer{Kind::File, path});
  sides_[1].chosen = *std::ranges::find_if(offers_, isHere);
  Load(sides_[1]);
  FillBoxes();
  Compare();
}

void CompareWindow::Choose(Side& side, int row) {
  Offer offer = offers_[static_cast<std::size_t>(row)];
  const auto path = offer.kind == Kind::Browse ? sources_.chooseFile() : std::nullopt;
  if (path) offers_.insert(offers_.end() - 1, offer = {Kind::File, *path});
  if (offer.kind != Kind::Browse) {
    side.chosen = offer;
    Load(side);
  }
  FillBoxes();
  Compare();
}

void CompareWindow::Load(Side& side) {
  trouble_.clear();
  side.holds.reset();
  side.lack.clear();
  switch (side.chosen.kind) {
    case Kind::Pages:
      side.holds = sources_.pages();
      break;
    case Kind::Logger:
      trouble_ = sources_.readLogger() ? Words::tr("The logger is being read.")
                                       : Words::tr("No session stands in which it could be read.");
      break;
    case Kind::File:
    case Kind::Copy:
      side.holds = sources_.readFile(side.chosen.path);
      if (side.holds)
        side.lack = sources_.lacks(*side.holds, side.chosen.path);
      else
        trouble_ = Words::tr("The file holds no configuration.");
      break;
    case Kind::None:
    case Kind::Browse:
      break;
  }
}

void CompareWindow::TakeReading(std::optional<ModelConfiguration> read) {
  trouble_ = read ? QString() : Words::tr("The logger could not be read.");
  for (Side& side : sides_)
    if (side.chosen.kind == Kind::Logger) side.holds = read;
  Compare();
}

void CompareWindow::Look() {
  bool hasChanged = false;
  for (Side& side : sides_) {
    if (side.chosen.kind != Kind::Pages) continue;
    ModelConfiguration present = sources_.pages();
    if (side.holds && present.conf == side.holds->conf &&
        present.profile.TargetName == side.holds->profile.TargetName)
      continue;
    side.holds = std::move(present);
    hasChanged = true;
  }
  if (hasChanged) Compare();
}

void CompareWindow::Rest(bool rests) { setEnabled(!rests); }

void CompareWindow::Compare() {
  tree_->SetSides(TextOf(sides_[0].chosen), TextOf(sides_[1].chosen));
  std::vector<Difference> differences;
  if (sides_[0].holds && sides_[1].holds) {
    ModelConfiguration one = *sides_[0].holds, other = *sides_[1].holds;
    std::optional<std::int32_t> features;
    // A reading takes the form of what it stands beside, and only what is sent counts for it.
    for (std::size_t i = 0; i < sides_.size(); ++i) {
      if (sides_[i].chosen.kind != Kind::Logger) continue;
      ModelConfiguration &read = i == 0 ? one : other, &beside = i == 0 ? other : one;
      features = sources_.features();
      if (read.profile.TargetName == beside.profile.TargetName)
        read.conf = ReadAsSent(read.conf, beside.conf, {read.profile, *features});
    }
    differences = ostrel::Compare(one, other, features).differences;
  }
  tree_->ShowDifferences(differences,
                         sides_[0].holds ? sides_[0].holds->profile : sources_.pages().profile,
                         sources_.translate);
  takeAll_->setEnabled(Source() && !differences.empty());
  takeSelected_->setEnabled(false);
  ShowSummary();
}

void CompareWindow::ShowSummary() {
  const auto& [one, other] = sides_;
  if (!one.holds || !other.holds) {
    summary_->setText(trouble_.isEmpty() ? Words::tr("Choose what is to be compared.") : trouble_);
    return;
  }
  QString text = DifferencesText(tree_->Differences().size());
  if (const Side* source = Source(); source && !tree_->Differences().empty())
    text += u' ' + Words::tr("What is taken over comes from: %1.").arg(TextOf(source->chosen));
  else if (one.holds->profile.TargetName != other.holds->profile.TargetName)
    text += u' ' + Words::tr("The models are not the same, so nothing can be taken over.");
  for (const Side& side : sides_)
    if (!side.lack.isEmpty()) text += u'\n' + TextOf(side.chosen) + ": " + side.lack;
  summary_->setText(text);
}

const CompareWindow::Side* CompareWindow::Source() const {
  const auto& [one, other] = sides_;
  if (!one.holds || !other.holds) return nullptr;
  if (one.holds->profile.TargetName != other.holds->profile.TargetName) return nullptr;
  const bool isFirst = one.chosen.kind == Kind::Pages, isSecond = other.chosen.kind == Kind::Pages;
  if (isFirst == isSecond) return nullptr;
  return isFirst ? &other : &one;
}

void CompareWindow::TakeOver(const std::vector<const Difference*>& fields) {
  const Side* source = Source();
  if (!source) return;
  std::vector<FieldId> ids;
  for (const Difference* field : fields) ids.push_back(field->id);
  sources_.takeOver(source->holds->conf, ids);
  Look();
}

}  // namespace ostrel
