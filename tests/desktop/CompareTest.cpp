#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include "OpenWindow.h"
#include "desktop/dialogs/CompareWindow.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class Comparing : public OpenWindow {
 protected:
  Comparing() { UseLanguage("en"); }
  QWidget* Compared() { return Window().findChild<QWidget*>("CompareWindow"); }
  QTreeWidget* Tree() { return Compared()->findChild<QTreeWidget*>("Differences"); }
  QString Summary() { return Compared()->findChild<QLabel*>("Summary")->text(); }
  void Press(const char* button) { Compared()->findChild<QPushButton*>(button)->click(); }
  void Choose(const char* side, const QString& text) {
    auto* box = Compared()->findChild<QComboBox*>(side);
    box->setCurrentIndex(box->findText(text));
    box->activated(box->currentIndex());
  }
  /// All that is shown, a line a row.
  QStringList Rows() {
    QStringList rows;
    for (QTreeWidgetItemIterator it(Tree()); *it; ++it)
      rows << QStringList{(*it)->text(0), (*it)->text(1), (*it)->text(2)}.join(u'|');
    return rows;
  }
  QString Name() { return On<QLineEdit>(*desktop, "Nombre")->text(); }
};

TEST_F(Comparing, TellsInWordsLeadsToTheFieldAndTakesOver) {
  DeviceConf& conf = Core().conf;
  conf.Digital[2].NOMBRE = "gate";
  for (const int config : {0, 1}) conf.Digital[2].ALARM[config].common.valid.SEMANA = 3;
  conf.Digital[2].ALARM[1].common.ACTHI[0] = 8;
  conf.Digital[3].NOMBRE = "pump";
  conf.Gprs.APN_PASS = "one";
  Core().ConfFilePath = Path("a.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  for (const int config : {0, 1}) conf.Digital[2].ALARM[config].common.valid.SEMANA = 1;
  conf.Digital[2].ALARM[1].common.ACTHI[0] = 0;
  conf.Digital[3].NOMBRE = "";
  conf.Gprs.APN_PASS = "two";
  Core().ShowConfiguration(conf);
  Window().GoTo("E_Digital_2");
  NameOf().Type("door");

  ASSERT_TRUE(SafetyCopies(files, clock, FromQt(folder.path()))
                  .Keep({conf, Core().profile, "123"})
                  .result.Ok());
  Tool("Comparar")->trigger();
  EXPECT_GE(
      Compared()->findChild<QComboBox*>("Side1")->findText("safety copy", Qt::MatchStartsWith), 0);
  dialogs.ChoosePath(Path("a.ocf"));
  dialogs.ChoosePath({});  // leaves what was chosen
  for (int choice = 0; choice < 2; ++choice) Choose("Side1", "another file...");
  EXPECT_EQ(Rows().join(u'\n'),
            "Digital input 2||\nName|door|gate\nAlarm 0, valid days|Mo|Mo Tu\n"
            "Alarm 1, valid days|Mo|Mo Tu\nAlarm 1, actions, high 0|none|8 - Ejecutar macro 7\n"
            "Digital input 3||\nName|empty|pump\n"
            "GPRS and FTP||\nAPN password|****|****, another one");
  EXPECT_TRUE(Summary().startsWith("6 fields differ. What is taken over comes from: a.ocf."));
  auto* takeSelected = Compared()->findChild<QPushButton*>("TakeSelected");
  EXPECT_FALSE(takeSelected->isEnabled());

  Window().GoTo("General");
  Tree()->itemActivated(Tree()->topLevelItem(1), 0);
  EXPECT_EQ(desktop->Navigator().Front()->Name(), "General") << "a heading is no field";
  Tree()->itemActivated(Tree()->topLevelItem(1)->child(0), 0);
  EXPECT_EQ(Window().Pages().Front()->GetForm().Title().back(), '3') << "it leads to its field";

  Tree()->topLevelItem(0)->child(2)->setSelected(true);
  EXPECT_TRUE(takeSelected->isEnabled());
  Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("TextoAlarma").Type("open");
  Press("TakeSelected");
  EXPECT_EQ(Core().conf.Digital[2].ALARM[1].common.valid.SEMANA, 3);
  EXPECT_EQ(Core().conf.Digital[2].ALARM[0].common.valid.SEMANA, 1) << "of another alarm";
  EXPECT_EQ(Core().conf.Digital[3].ALARM[0].common.TEXTO, "open") << "what stands on the page";
  Tree()->topLevelItem(0)->setSelected(true);  // the whole channel
  Press("TakeSelected");
  EXPECT_EQ(Core().conf.Digital[2].NOMBRE, "gate");
  EXPECT_EQ(Core().conf.Digital[2].ALARM[1].common.ACTHI[0], 8);
  EXPECT_EQ(Core().conf.Digital[3].NOMBRE, "");
  EXPECT_EQ(Rows().size(), 5);
  Press("TakeAll");
  EXPECT_EQ(Name(), "pump") << "the page in front shows it";
  EXPECT_EQ(Core().conf.Gprs.APN_PASS, "one");
  EXPECT_EQ(Summary(), "Both hold the same.");
}

TEST_F(Comparing, ReadsTheLoggerBesideThePages) {
  ConnectTo(sim::Model::BP);
  Window().GoTo("E_Digital_2");
  NameOf().Type("door");
  Tool("Comparar")->trigger();
  Choose("Side1", "the logger");
  EXPECT_EQ(Summary(), "The logger is being read.");
  EXPECT_FALSE(Compared()->isEnabled()) << "it rests meanwhile";
  loop.RunFor(seconds(10));
  EXPECT_GT(Rows().size(), 20);
  EXPECT_EQ(Name(), "door");
  EXPECT_TRUE(Window().isWindowModified()) << "what stood on the pages is as unsaved as before";
  EXPECT_TRUE(Tool("Deshacer")->isEnabled()) << "and can be undone as before";
  EXPECT_FALSE(Core().WhereFrom().isKnown);
  Press("TakeAll");
  EXPECT_EQ(Core().conf.General.DNAME, logger->Conf().name);
  EXPECT_EQ(Summary(), "Both hold the same.");
  loop.After(std::chrono::milliseconds(100), "unplug", [this] { line->Vanish(); });
  Choose("Side1", "the logger");
  loop.RunFor(seconds(10));
  EXPECT_EQ(Summary(), "The logger could not be read.");
}

TEST_F(Comparing, ACutFileAndAnotherModelAreTold) {
  dialogs.ChoosePath(Path("whole.ocf"));
  Tool("Guardar")->trigger();
  const std::string whole = files.Read(Path("whole.ocf")).value();
  files.Create(Path("cut.ocf"));
  files.Write(Path("cut.ocf"), whole.substr(0, whole.size() / 2));
  Tool("Comparar")->trigger();
  EXPECT_EQ(Summary(), "Both hold the same.") << "with the file that is worked on";
  auto* window = static_cast<CompareWindow*>(Compared());
  window->ShowFile(Path("Lang.txt"));
  EXPECT_EQ(Summary(), "The file holds no configuration.");
  window->ShowFile(Path("cut.ocf"));
  EXPECT_TRUE(Summary().contains("not whole")) << FromQt(Summary());
  Core().TargetDeviceChange("Ostrel KA1");
  window->Look();
  EXPECT_TRUE(Summary().contains("nothing can be taken over")) << FromQt(Summary());
  EXPECT_FALSE(Compared()->findChild<QPushButton*>("TakeAll")->isEnabled());
}

class Copying : public Comparing {
 protected:
  Copying() {
    AlarmBlock& alarm = Core().conf.Digital[2].ALARM[1].common;
    Core().conf.Digital[2].NOMBRE = "gate";
    Core().conf.Digital[2].ALARM[0].common.TEXTO = "other";
    alarm.HABIL = kTrue;
    alarm.TEXTO = "open";
    alarm.ACTHI[0] = 8;
    Core().conf.Digital[5].NOMBRE = "pump";
    Core().ShowConfiguration(Core().conf);
  }
  /// What starts with some words in the menu of the channel; null for nothing.
  QAction* Offered(const QString& words) {
    QMenu* menu = Tool("Canal")->menu();
    menu->aboutToShow();
    for (QAction* action : menu->actions())
      if (action->text().startsWith(words)) return action;
    return nullptr;
  }
  void Run(const QString& words) {
    QAction* action = Offered(words);
    ASSERT_NE(action, nullptr) << "nothing begins with " << FromQt(words);
    action->trigger();
  }
  const AlarmBlock& Alarm(int channel, int config) {
    return Core().conf.Digital[channel].ALARM[config].common;
  }
};

TEST_F(Copying, AnAlarmGoesIntoAnotherAndAChannelKeepsItsName) {
  Window().GoTo("E_Digital_2");
  Window().Pages().Front()->GetForm().Get<OptionButton>("Config1").SetSelected(true);
  Window().Pages().Front()->GetForm().Get<TextBox>("TextoAlarma").Type("ajar");
  Run("Copy alarm 1 of digital input 2");
  Window().GoTo("E_Analog_1");
  EXPECT_EQ(Offered("Paste"), nullptr) << "of another kind";
  Window().GoTo("E_Digital_5");
  Window().Pages().Front()->GetForm().Get<OptionButton>("Config3").SetSelected(true);
  Run("Paste alarm 1 of digital input 2 as alarm 3 of digital input 5");
  EXPECT_EQ(Alarm(5, 3), Alarm(2, 1));
  EXPECT_NE(Alarm(5, 1), Alarm(2, 1));
  EXPECT_EQ(On<QLineEdit>(*desktop, "TextoAlarma")->text(), "ajar");
  Window().GoTo("E_Digital_2");
  Run("Copy digital input 2");
  Window().GoTo("E_Digital_5");
  Run("Paste digital input 2 into");
  EXPECT_EQ(Alarm(5, 0), Alarm(2, 0));
  EXPECT_EQ(Name(), "pump");
  EXPECT_TRUE(Window().isWindowModified());
}

TEST_F(Copying, IsAppliedToAllOthers) {
  Window().GoTo("E_Digital_2");
  modals.Expect([](QWidget* modal) {
    auto* what = modal->findChild<QComboBox*>("What");
    what->setCurrentIndex(what->findText("alarm 1 alone"));
    const auto* apply = modal->findChild<QPushButton*>("Apply");
    modal->findChild<QPushButton*>("All")->click();
    EXPECT_TRUE(apply->isEnabled());
    modal->findChild<QPushButton*>("None")->click();
    EXPECT_FALSE(apply->isEnabled());
    modal->findChild<QPushButton*>("All")->click();
    auto* targets = modal->findChild<QListWidget*>("Targets");
    EXPECT_EQ(targets->count(), 8) << "no more than the model has";
    EXPECT_TRUE(targets->item(2)->isHidden()) << "it is copied";
    targets->item(4)->setCheckState(Qt::Unchecked);
    modal->findChild<QPushButton*>("Apply")->click();
  });
  Run("Apply to several");
  for (const int channel : {0, 1, 3, 5, 6, 7}) EXPECT_EQ(Alarm(channel, 1), Alarm(2, 1)) << channel;
  EXPECT_NE(Alarm(4, 1), Alarm(2, 1));
  EXPECT_EQ(Alarm(2, 0).TEXTO, "other");
  EXPECT_EQ(Alarm(5, 0).TEXTO, "");
}

TEST_F(Copying, IsPastedIntoTheChannelsSelectedInATable) {
  Window().GoTo("E_Digital_2");
  Run("Copy digital input 2");
  Window().show();
  Window().GoTo("E_Analog");
  EXPECT_EQ(Offered("Paste"), nullptr) << "of another kind";
  Window().GoTo("E_Digital");
  auto* table = Window().findChild<QTableWidget*>("GroupTable");
  for (const int row : {0, 6})
    table->selectionModel()->select(table->model()->index(row, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
  Run("Paste digital input 2 into the channels");
  EXPECT_EQ(Alarm(6, 1), Alarm(2, 1));
  EXPECT_EQ(Alarm(0, 1), Alarm(2, 1));
  EXPECT_NE(Alarm(1, 1), Alarm(2, 1));
}

}  // namespace
}  // namespace ostrel
