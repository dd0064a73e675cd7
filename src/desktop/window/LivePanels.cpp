#include "desktop/window/LivePanels.h"

#include <QAction>
#include <QBuffer>
#include <QMainWindow>
#include <QMenu>

#include "desktop/forms/Words.h"
#include "platform/Settings.h"

namespace ostrel {
namespace {

constexpr std::string_view kPlotPart = "Window";
constexpr std::string_view kPlotKey = "Plot";
constexpr int kPanelHeight = 330;

}  // namespace

LivePanels::LivePanels(const LivePanelParts& parts)
    : parts_(parts),
      configurator_(parts.configurator),
      work_(parts.platform.files, parts.platform.clock, parts.dataFolder),
      plot_(new PlotPanel(history_, &parts.window)),
      acceptance_(new AcceptancePanel(work_, &parts.window)) {
  for (QDockWidget* panel :
       {static_cast<QDockWidget*>(plot_), static_cast<QDockWidget*>(acceptance_)}) {
    parts_.window.addDockWidget(Qt::BottomDockWidgetArea, panel);
    panel->hide();
  }
  Settings& settings = parts_.platform.settings;
  plot_->ChooseTags(settings.Get(kMaker, kPlotPart, kPlotKey));
  plot_->OnChosen = [this, &settings] {
    settings.Set(kMaker, kPlotPart, kPlotKey, plot_->ChosenTags());
  };
  plot_->OnSavePicture = [this] { parts_.guard([this] { SavePicture(); }); };
  plot_->OnSaveValues = [this] {
    parts_.guard([this] { parts_.save(Words::tr("Values"), "csv", plot_->ValuesInView()); });
  };
  acceptance_->OnExport = [this] {
    parts_.guard([this] { parts_.save(Words::tr("Acceptance"), "csv", acceptance_->Table()); });
  };
  acceptance_->OnInput = [this](const std::string& node) {
    parts_.guard([&] { parts_.goTo(node); });
  };
  rounds_ = configurator_.livePoll.OnRound([this](const LiveRound& round) { TakeRound(round); });
}

LivePanels::~LivePanels() {
  delete plot_;
  delete acceptance_;
}

QAction* LivePanels::AddSwitch(QMenu& menu, QDockWidget& panel, const char* keys) {
  QAction* action = menu.addAction(QString());
  action->setShortcut(QKeySequence(keys));
  action->setCheckable(true);
  parts_.window.addAction(action);
  QObject::connect(action, &QAction::toggled, &panel, [this, &panel](bool on) {
    panel.setVisible(on);
    if (on) parts_.window.resizeDocks({&panel}, {kPanelHeight}, Qt::Vertical);
    parts_.guard([this] { Shown(); });
  });
  QObject::connect(&panel, &QDockWidget::visibilityChanged, action, [action, &panel](bool) {
    if (panel.isHidden()) action->setChecked(false);
  });
  return action;
}

void LivePanels::AddTo(QMenu& menu) {
  plotSwitch_ = AddSwitch(menu, *plot_, "Ctrl+L");
  acceptanceSwitch_ = AddSwitch(menu, *acceptance_, "Ctrl+K");
}

void LivePanels::Retranslate() {
  plotSwitch_->setText(Words::tr("Plot"));
  acceptanceSwitch_->setText(Words::tr("Acceptance"));
  plot_->Retranslate();
  acceptance_->Retranslate();
}

void LivePanels::Shown() {
  const bool isShown = plotSwitch_->isChecked() || acceptanceSwitch_->isChecked();
  if (!isShown) going_.reset();
  if (isShown && !going_) going_ = configurator_.livePoll.KeepGoing();
  if (plotSwitch_->isChecked()) plot_->Look();
  Look(file_);
}

void LivePanels::TakeRound(const LiveRound& round) {
  // Curves of two loggers must not run into each other.
  const LoggerIdentity logger = IdentityOf(configurator_.profile, configurator_.info);
  if (historyOf_.Follow(logger) == LoggerChange::Other) history_.Clear();
  history_.Add(WithNames(round, configurator_.conf));
  if (!plot_->isHidden()) plot_->Look();
  if (!acceptance_->isHidden()) acceptance_->ShowRound(round);
}

void LivePanels::Look(const std::string& file) {
  file_ = file;
  const bool isPresent = configurator_.livePoll.IsPresent();
  plot_->SetPresent(isPresent);
  if (!acceptanceSwitch_->isChecked()) return;
  if (!isPresent) acceptance_->ShowRound({});
  // What is half read is no configuration.
  if (!configurator_.session.OwnsModel()) FollowConfiguration();
}

/// Without a session the work stays with the logger that it was begun on, as long as the
/// configuration does: notes are finished at the desk.
void LivePanels::FollowConfiguration() {
  const Acceptance& present = work_.Present();
  Acceptance subject{.serialNumber = configurator_.info.SerialNumber,
                     .configuration = ConfigurationName(file_),
                     .model = configurator_.profile.TargetName};
  const bool isSame = workOn_ == configurator_.conf && subject.model == present.model;
  const bool hasSameName = subject.configuration == present.configuration;
  if (!configurator_.Connected)
    subject.serialNumber =
        isSame && (hasSameName || present.configuration.empty()) ? present.serialNumber : "";
  if (isSame && hasSameName && subject.serialNumber == present.serialNumber) return;
  workOn_ = configurator_.conf;
  subject.points = ConfiguredInputs(
      {configurator_.profile, configurator_.conf},
      [this](std::string_view text) { return configurator_.context.Translate(text); });
  work_.Begin(subject);
  acceptance_->Look();
}

void LivePanels::SetMaySave(bool may) {
  plot_->SetMaySave(may);
  acceptance_->SetMaySave(may);
}

void LivePanels::SavePicture() {
  QByteArray octets;
  QBuffer buffer(&octets);
  buffer.open(QIODevice::WriteOnly);
  plot_->Chart().Picture().save(&buffer, "PNG");
  parts_.save(Words::tr("Picture"), "png", octets.toStdString());
}

}  // namespace ostrel
