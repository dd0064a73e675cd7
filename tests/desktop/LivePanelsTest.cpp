#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <set>

#include "OpenWindow.h"
#include "desktop/acceptance/AcceptancePanel.h"
#include "desktop/plot/PlotPanel.h"
#include "desktop/program/Language.h"
#include "shell/acceptance/AcceptanceFile.h"

namespace ostrel {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

/// The panels of a session with a simulated logger, in English.
class WindowLivePanels : public OpenWindow {
 protected:
  WindowLivePanels() {
    UseLanguage("en");
    ConnectTo(sim::Model::BP);
    Window().resize(1280, 720);
    Window().show();
  }
  /// Lets time pass on the wall clock, too.
  void Run(seconds time) {
    for (; time > seconds(0); time -= seconds(1)) {
      loop.RunFor(seconds(1));
      clock.SetNow(FromSeconds(ToSeconds(clock.LocalNow()) + 1));
    }
  }
  /// Shows or hides a panel.
  void Switch(const QString& keys) {
    for (QAction* action : Window().actions())
      if (action->shortcut() == QKeySequence(keys)) return action->toggle();
    throw std::invalid_argument("no switch " + FromQt(keys));
  }
  template <class Widget>
  Widget* Find(const char* name) {
    return Window().findChild<Widget*>(name);
  }
  PlotChart& Chart() { return *static_cast<PlotChart*>(Find<QWidget>("PlotChart")); }
  std::string ChosenTags() {
    return static_cast<PlotPanel*>(Find<QDockWidget>("Plot"))->ChosenTags();
  }
  QTreeWidgetItem* Row(const char* list, int row) {
    return Find<QTreeWidget>(list)->topLevelItem(row);
  }
  QTreeWidgetItem* PlotRow(const QString& tag) {
    for (int row = 0; row < Find<QTreeWidget>("PlotList")->topLevelItemCount(); ++row)
      if (Row("PlotList", row)->text(0).section(u' ', -1) == tag) return Row("PlotList", row);
    throw std::invalid_argument("no value " + FromQt(tag));
  }
  void ChooseNothing() {
    for (int row = 0; row < Find<QTreeWidget>("PlotList")->topLevelItemCount(); ++row)
      Row("PlotList", row)->setCheckState(0, Qt::Unchecked);
  }
  /// What stands in a file that a button saves.
  std::string Saved(const char* button, const std::string& name) {
    dialogs.ChoosePath(Path(name));
    Find<QPushButton>(button)->click();
    return files.Read(Path(name)).value_or("");
  }
};

TEST_F(WindowLivePanels, PlotsWhatIsChosenOnAnyPage) {
  Window().GoTo("E_Digital_1");
  Core().conf.Digital[0].NOMBRE = "Gate";
  Switch("Ctrl+L");
  Run(minutes(2));
  PlotChart& chart = Chart();
  EXPECT_EQ(PlotRow("DI0")->text(0), "Gate  DI0");
  Core().conf.Digital[0].NOMBRE = "Door";
  Run(seconds(2));
  EXPECT_EQ(PlotRow("DI0")->text(0), "Door  DI0");
  EXPECT_EQ(ChosenTags(), "AI0 AI1 AI2") << "a chart without curves tells nothing";
  for (const QLabel* label : Find<QDockWidget>("Plot")->findChildren<QLabel*>())
    EXPECT_FALSE(label->isVisibleTo(&Window())) << FromQt(label->text());
  ChooseNothing();
  PlotRow("DI0")->setCheckState(0, Qt::Checked);
  PlotRow("AI0")->setCheckState(0, Qt::Checked);
  chart.replot();
  ASSERT_EQ(chart.graphCount(), 2);
  EXPECT_GT(chart.graph(0)->dataCount(), 100);
  EXPECT_TRUE(chart.accessibleDescription().contains("DI0: ")) << "in words, too";
  EXPECT_FALSE(PlotRow("AI0")->text(1).isEmpty());
  Find<QLineEdit>("PlotFilter")->setText("ai0");
  EXPECT_TRUE(PlotRow("DI0")->isHidden());
  EXPECT_FALSE(PlotRow("AI0")->isHidden());

  Find<QDockWidget>("Plot")->close();
  Run(seconds(2));
  int asked = 0;
  logger->OnExchange([&](const sim::Exchange&) { ++asked; });
  Run(minutes(1));
  EXPECT_EQ(asked, 0) << "nothing is read for a panel that was closed";
  const auto before = chart.View();
  Switch("Ctrl+K");
  Run(minutes(1));
  EXPECT_GT(asked, 0);
  EXPECT_EQ(chart.View(), before) << "nothing is drawn while nobody looks";
  desktop = Make(&dialogs);
  desktop->Start("");
  EXPECT_EQ(ChosenTags(), "DI0 AI0") << "the choice is remembered";
}

TEST_F(WindowLivePanels, PansAndZoomsByKeyboardAndFollowsAgain) {
  Switch("Ctrl+L");
  Run(minutes(2));
  PlotChart& chart = Chart();
  auto* follow = Find<QCheckBox>("PlotFollow");
  const auto length = [&] { return chart.View().Length(); };
  EXPECT_TRUE(follow->isChecked());
  const auto end = chart.View().to;
  Run(seconds(10));
  EXPECT_GT(chart.View().to, end + seconds(8));
  const auto former = length();
  Press(&chart, Qt::Key_Plus);
  EXPECT_LT(length(), former);
  EXPECT_TRUE(follow->isChecked()) << "a zoom keeps the end";
  const auto last = chart.View().to;
  Press(&chart, Qt::Key_Left);
  EXPECT_FALSE(follow->isChecked());
  const auto rest = chart.View();
  EXPECT_LT(rest.to, last);
  Run(seconds(10));
  EXPECT_EQ(chart.View(), rest);
  Press(&chart, Qt::Key_End);
  EXPECT_TRUE(follow->isChecked());
  EXPECT_GT(chart.View().to, last + seconds(8));
  Press(&chart, Qt::Key_Left);
  follow->click();
  EXPECT_GT(chart.View().to, last + seconds(8));
  Press(&chart, Qt::Key_Home);
  EXPECT_NEAR(double(length().count()), 140'000, 15'000) << "all that was read";
  const auto all = length();
  Find<QPushButton>("PlotOut")->click();
  EXPECT_GT(length(), all);
  Find<QPushButton>("PlotIn")->click();
  EXPECT_EQ(length(), all);

  chart.resize(800, 300);
  chart.replot();
  const QPoint middle(400, 200);
  const auto turn = [&](Qt::KeyboardModifiers keys) {
    QWheelEvent wheel(middle, chart.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&chart, &wheel);
    chart.replot();
  };
  const auto whole = chart.View();
  turn(Qt::NoModifier);
  EXPECT_LT(length(), whole.Length());
  const auto zoomed = chart.View();
  const QCPAxis& values = *chart.graph(0)->valueAxis();
  const QCPRange fitted = values.range();
  turn(Qt::ShiftModifier);
  EXPECT_LT(values.range().size(), fitted.size()) << "with Shift the values";
  const QCPRange rested = values.range();
  SendMouse(&chart, QEvent::MouseButtonPress, middle, Qt::ShiftModifier);
  SendMouse(&chart, QEvent::MouseMove, middle + QPoint(0, 40));
  SendMouse(&chart, QEvent::MouseButtonRelease, middle + QPoint(0, 40));
  EXPECT_GT(values.range().center(), rested.center());
  EXPECT_EQ(chart.View(), zoomed);
  SendMouse(&chart, QEvent::MouseButtonPress, middle);
  SendMouse(&chart, QEvent::MouseMove, middle + QPoint(100, 0));
  SendMouse(&chart, QEvent::MouseButtonRelease, middle + QPoint(100, 0));
  EXPECT_LT(chart.View().to, zoomed.to);
  EXPECT_EQ(length(), zoomed.Length());
  EXPECT_FALSE(follow->isChecked());
  EXPECT_TRUE(chart.Pointed());
  const QString there = chart.accessibleDescription();
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&chart, &leave);
  EXPECT_FALSE(chart.Pointed());
  EXPECT_NE(chart.accessibleDescription(), there) << "the values of now again";
}

TEST_F(WindowLivePanels, DrawsStatesInLanesAndNumbersOnTheAxesOfTheirUnits) {
  Switch("Ctrl+L");
  Run(seconds(20));
  ChooseNothing();
  for (const char* tag : {"CT0", "CT7", "AI0", "DI0", "DI1"})
    PlotRow(tag)->setCheckState(0, Qt::Checked);
  PlotChart& chart = Chart();
  chart.resize(800, 400);
  chart.replot();
  ASSERT_EQ(chart.graphCount(), 5);
  for (int i = 0; i < 5; ++i) {
    const QCPGraph& graph = *chart.graph(i);
    EXPECT_EQ(graph.lineStyle(), i < 3 ? QCPGraph::lsLine : QCPGraph::lsStepLeft);
    for (const QCPGraphData& point : *graph.data()) {
      EXPECT_TRUE(graph.valueAxis()->range().contains(point.value)) << i;
      EXPECT_GE(point.value, i > 3 ? 1 : 0) << "in the lane of its own";
    }
  }
  EXPECT_EQ(chart.graph(2)->name(), "Nivel depósito [m]");
  EXPECT_EQ(chart.graph(0)->valueAxis(), chart.graph(1)->valueAxis());
  EXPECT_NE(chart.graph(0)->valueAxis(), chart.graph(2)->valueAxis());

  QCPAxis& axis = *chart.graph(2)->valueAxis();
  const QCPRange fitted = axis.range();
  const auto behind = [&](Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    Press(&chart, key, {}, keys);
    chart.replot();
    return axis.range();
  };
  EXPECT_LT(behind(Qt::Key_PageUp).size(), fitted.size());
  EXPECT_GT(behind(Qt::Key_Up).center(), fitted.center());
  EXPECT_EQ(behind(Qt::Key_0), fitted);
  EXPECT_GT(behind(Qt::Key_PageDown).size(), fitted.size());
  DoubleClick(&chart, {400, 200});
  chart.replot();
  EXPECT_EQ(axis.range(), fitted);
  const auto length = chart.View().Length();
  for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus}) Press(&chart, key);
  EXPECT_EQ(chart.View().Length(), length);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Right}) Press(&chart, key);
  EXPECT_EQ(chart.View().Length(), length);
  const auto end = chart.View().to;
  Press(&chart, Qt::Key_Right);
  EXPECT_GT(chart.View().to, end);
}

TEST_F(WindowLivePanels, SavesPictureAndValuesInView) {
  Switch("Ctrl+L");
  Run(seconds(30));
  const std::string picture = Saved("PlotPicture", "plot.png");
  EXPECT_TRUE(QImage::fromData(QByteArray::fromStdString(picture)).width() > 2000);
  ChooseNothing();
  EXPECT_FALSE(Find<QPushButton>("PlotValues")->isEnabled()) << "nothing is chosen";
  for (const char* tag : {"CT1", "AI1", "CT0", "DI2"}) PlotRow(tag)->setCheckState(0, Qt::Checked);
  const std::string values = Saved("PlotValues", "values.csv");
  EXPECT_TRUE(values.starts_with("utc,local,DI2")) << values;
  EXPECT_EQ(values.find(",,"), values.npos) << "chosen in whatever order, all are there";
  const auto rows = std::ranges::count(values, '\n') - 1;
  EXPECT_GT(rows, 20);
  for (int i = 0; i < 5; ++i) Press(&Chart(), Qt::Key_Plus);
  while (Chart().View().Length() > seconds(10)) Press(&Chart(), Qt::Key_Plus);
  const std::string fewer = Saved("PlotValues", "fewer.csv");
  EXPECT_LT(std::ranges::count(fewer, '\n') - 1, rows / 2) << "what is in view";
}

TEST_F(WindowLivePanels, KeepsItsHistoryUntilAnotherLoggerComes) {
  Window().GoTo("E_Digital_0");
  Switch("Ctrl+L");
  Run(seconds(30));
  const auto length = [&] {
    Press(&Chart(), Qt::Key_Home);
    return Chart().View().Length();
  };
  const std::string number = std::exchange(Core().info.SerialNumber, "");
  for (const std::string& told : {std::string(), number}) {
    Core().info.SerialNumber = told;
    Run(seconds(3));
    EXPECT_GT(length(), seconds(28)) << "a number that has not come yet is no other";
  }
  Core().info.SerialNumber = number + "0";
  Run(seconds(3));
  EXPECT_LT(length(), seconds(5));
}

TEST_F(WindowLivePanels, AcceptsPointByPointAndKeepsIt) {
  Core().conf.Digital[0].NOMBRE = "Door";
  Core().conf.Analog[1].NOMBRE = "Level";
  files.Create(Path("acceptance"));  // where the folder is to be
  Switch("Ctrl+K");
  Run(seconds(10));
  auto* list = Find<QTreeWidget>("AcceptanceList");
  ASSERT_EQ(list->topLevelItemCount(), 2);
  EXPECT_EQ(list->topLevelItem(0)->text(0), "Analog input 1: Level");
  const QString now = list->topLevelItem(0)->text(1);
  EXPECT_FALSE(now.isEmpty());
  Find<QPushButton>("AcceptancePass")->click();
  EXPECT_EQ(list->topLevelItem(0)->text(2), "pass");
  EXPECT_EQ(list->topLevelItem(0)->text(4), now);
  EXPECT_EQ(list->currentItem(), list->topLevelItem(1)) << "on to the next";
  auto* failure = list->parentWidget()->findChild<QLabel*>("Failure");
  EXPECT_TRUE(failure->isVisibleTo(&Window()));
  EXPECT_TRUE(failure->text().startsWith("The last change could not be kept: "));
  files.Remove(Path("acceptance"));
  Find<QPushButton>("AcceptanceFail")->click();
  EXPECT_EQ(list->topLevelItem(1)->text(4), list->topLevelItem(1)->text(1)) << "its own value";
  EXPECT_FALSE(list->topLevelItem(1)->text(5).isEmpty());
  auto* note = Find<QLineEdit>("AcceptanceNote");
  Type(note, "no pulse");
  const std::string& serial = Core().info.SerialNumber;
  const auto kept = AcceptanceFiles(files, FromQt(folder.path())).Read(serial, "").acceptance;
  ASSERT_EQ(kept.points.size(), 2u);
  EXPECT_EQ(kept.points[0].verdict, Verdict::Passed);
  EXPECT_EQ(kept.points[1].note, "no pulse");
  EXPECT_TRUE(Find<QLabel>("AcceptanceSummary")->text().contains("1 passed, 1 failed, 0 open"));
  const std::string table = Saved("AcceptanceExport", "acceptance.csv");
  EXPECT_NE(table.find(serial + ",,digital input,0,Door,fail,no pulse,"), std::string::npos)
      << table;

  Core().conf.Digital[1].NOMBRE = "Pump";
  Run(seconds(2));
  ASSERT_EQ(list->topLevelItemCount(), 3) << "it follows the configuration";
  EXPECT_EQ(list->topLevelItem(1)->text(3), "no pulse");
  list->setCurrentItem(list->topLevelItem(0));
  EXPECT_EQ(note->text(), "");
  Find<QPushButton>("AcceptanceOpen")->click();
  EXPECT_EQ(list->topLevelItem(0)->text(2), "open");
  Find<QPushButton>("AcceptanceFail")->click();
  EXPECT_EQ(list->currentItem(), list->topLevelItem(0)) << "to note what it was";
  Find<QPushButton>("AcceptancePass")->click();
  EXPECT_EQ(list->currentItem(), list->topLevelItem(2)) << "over what is judged";
  Core().conf.Analog[0].NOMBRE = "Pressure";
  Run(seconds(2));
  ASSERT_EQ(list->topLevelItemCount(), 4);
  EXPECT_EQ(list->topLevelItem(2)->text(3), "no pulse");
  EXPECT_EQ(list->currentItem(), list->topLevelItem(3)) << "the input, not the row";
  Press(list, Qt::Key_Return);
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "E_Digital");
  Run(seconds(2));
  Core().session.Close(false);
  Run(seconds(2));
  EXPECT_TRUE(note->isEnabled()) << "notes are finished at the desk";
  Core().conf.Digital[2].NOMBRE = "Gate";
  Run(seconds(2));
  EXPECT_FALSE(Find<QPushButton>("AcceptancePass")->isEnabled())
      << "of which logger this is, nobody knows";
  EXPECT_TRUE(Find<QLabel>("AcceptanceSummary")->text().startsWith("Open a session to begin"));
  EXPECT_FALSE(note->isEnabled());
  EXPECT_EQ(list->topLevelItem(0)->text(1), "") << "nothing is measured any more";
}

/// The terminal has the line to itself: no rounds come.
TEST_F(WindowLivePanels, WhatIsOldIsNotTakenForPresent) {
  Core().conf.Analog[1].NOMBRE = "Level";
  Window().GoTo("E_Digital_0");
  Switch("Ctrl+K");
  Switch("Ctrl+L");
  Run(seconds(5));
  const auto now = [&] { return Row("AcceptanceList", 0)->text(1); };
  const auto heading = [&] { return Find<QTreeWidget>("PlotList")->headerItem()->text(1); };
  EXPECT_FALSE(now().isEmpty());
  EXPECT_EQ(heading(), "Now");
  Window().GoTo("Terminal");
  Run(seconds(2));
  EXPECT_EQ(now(), "");
  EXPECT_TRUE(heading().contains(u':')) << "when the values came";
  Find<QPushButton>("AcceptancePass")->click();
  EXPECT_EQ(Row("AcceptanceList", 0)->text(2), "pass");
  EXPECT_EQ(Row("AcceptanceList", 0)->text(4), "") << "nothing was measured at that moment";
  Window().GoTo("E_Digital_0");
  Run(seconds(3));
  EXPECT_FALSE(now().isEmpty());
  EXPECT_EQ(heading(), "Now");
  Core().comms.LinkBusy = true;
  Run(seconds(2));
  EXPECT_EQ(now(), "") << "another dialogue has the line";
  Core().comms.LinkBusy = false;
}

/// Clicks fall into rounds, which must come to their ends behind the question.
TEST_F(WindowLivePanels, NoQuestionHoldsARoundUp) {
  Window().GoTo("E_Digital_0");
  Switch("Ctrl+L");
  Run(seconds(5));
  int asked = 0;
  const auto rests = [&] {
    ++asked;
    EXPECT_FALSE(Core().comms.LinkBusy) << asked;
  };
  dialogs.whileAsked = [&](const FileQuestion&) { rests(); };
  const auto inARound = [&](const std::function<void()>& click) {
    const int before = asked;
    bool isClicked = false;
    logger->OnExchange([&](const sim::Exchange& exchange) {
      if (exchange.request == "#22" && !std::exchange(isClicked, true))
        loop.After(std::chrono::milliseconds(1), "a click", click);
    });
    Run(seconds(3));
    logger->OnExchange({});
    EXPECT_TRUE(isClicked);
    EXPECT_EQ(asked, before + 1);
  };
  for (const char* button : {"PlotPicture", "PlotValues"})
    inARound([&] { Find<QPushButton>(button)->click(); });
  for (const QKeySequence& keys : {QKeySequence(QKeySequence::Open), QKeySequence("Ctrl+Shift+S")})
    inARound([&] {
      for (QAction* action : Window().findChildren<QAction*>())
        if (action->shortcut() == keys) return action->trigger();
    });
  Window().GoTo("T_Real");
  inARound([&] { Core().monitor.GetForm().Get<Button>("BotonGrabar").Click(); });
  Window().GoTo("E_Digital_0");
  dialogs.OnModal([&](Modal&) { rests(); });
  inARound([&] {
    Core().context.EditActions(Core().conf.Digital[0].ALARM[0].common.ACTHI, "DI0", [] {});
  });
}

TEST_F(WindowLivePanels, AcceptanceGoesByTheNameOfTheConfiguration) {
  Core().conf.Digital[0].NOMBRE = "Door";
  Switch("Ctrl+K");
  Run(seconds(2));
  Find<QPushButton>("AcceptancePass")->click();  // before there is a name
  for (const auto& [name, passed] : {std::pair{"a.ocf", 1}, {"b.ocf", 0}, {"a.ocf", 1}}) {
    dialogs.ChoosePath(Path(name));
    Tool("Guardar como")->trigger();
    Run(seconds(2));
    const QString summary = Find<QLabel>("AcceptanceSummary")->text();
    EXPECT_TRUE(summary.contains(QString(", %1: %2 passed").arg(name).arg(passed)))
        << FromQt(summary);
    Find<QPushButton>("AcceptancePass")->click();
  }
}

TEST_F(WindowLivePanels, AcceptanceGetsItsNameAtTheDesk) {
  Core().conf.Digital[0].NOMBRE = "Door";
  Switch("Ctrl+K");
  Run(seconds(2));
  Find<QPushButton>("AcceptancePass")->click();
  Core().session.Close(false);
  Run(seconds(2));
  dialogs.ChoosePath(Path("a.ocf"));
  Tool("Guardar como")->trigger();
  Run(seconds(2));
  const QString summary = Find<QLabel>("AcceptanceSummary")->text();
  EXPECT_TRUE(summary.contains(", a.ocf: 1 passed")) << FromQt(summary);
}

TEST_F(WindowLivePanels, AcceptanceWaitsForTheEndOfADownload) {
  Core().conf.Digital[0].NOMBRE = "Door";
  for (const char* keys : {"Ctrl+L", "Ctrl+K"}) Switch(keys);
  Run(seconds(3));
  EXPECT_TRUE(Find<QPushButton>("PlotPicture")->isEnabled());
  std::set<int> shown;
  const TimerId watch = loop.Every(seconds(1), "watch", [&] {
    if (!Core().session.OwnsModel()) return;
    shown.insert(Find<QTreeWidget>("AcceptanceList")->topLevelItemCount());
    for (const char* button : {"AcceptanceExport", "PlotPicture"})
      EXPECT_FALSE(Find<QPushButton>(button)->isEnabled());
  });
  ModalScript asked;  // where the change was seen in time
  asked.Expect([](QWidget* question) {
    for (auto* button : question->findChildren<QAbstractButton*>())
      if (button->text().contains("without saving")) button->click();
  });
  Core().session.AskFor(SessionPhase::Reading);
  Run(seconds(3));
  loop.Cancel(watch);
  const auto words = [](std::string_view text) { return std::string(text); };
  EXPECT_EQ(shown, std::set{1}) << "what is half read is no configuration";
  EXPECT_EQ(Find<QTreeWidget>("AcceptanceList")->topLevelItemCount(),
            static_cast<int>(ConfiguredInputs({Core().profile, Core().conf}, words).size()));
}

}  // namespace
}  // namespace ostrel
