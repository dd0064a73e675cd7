#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

#include "OpenWindow.h"
#include "desktop/program/Language.h"
#include "desktop/window/ApplyDialog.h"
#include "desktop/window/CompareWindow.h"

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
  conf.Digital[2].ALARM[1].common.valid.SEMANA = 3;
  conf.Digital[3].NOMBRE = "pump";
  conf.Gprs.APN_PASS = "one";
  Core().ConfFilePath = Path("a.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  conf.Digital[2].ALARM[1].common.valid.SEMANA = 1;
  conf.Digital[3].NOMBRE = "";
  conf.Gprs.APN_PASS = "two";
  Core().ShowConfiguration(conf);
  Window().GoTo("E_Digital_2");
  Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("Nombre").Type("door");

  Tool("Comparar")->trigger();
  dialogs.ChoosePath(Path("a.ocf"));
  Choose("Side1", "another file...");
  EXPECT_EQ(Rows().join(u'\n'),
            "Digital input 2||\nName|door|gate\nAlarm 1, valid days|Mo|Mo Tu\nDigital input 3||\n"
            "Name|empty|pump\nGPRS and FTP||\nAPN password|****|****, another one");
  EXPECT_TRUE(Summary().startsWith("4 fields differ. What is taken over comes from: a.ocf."));

  Window().GoTo("General");
  Tree()->itemActivated(Tree()->topLevelItem(1)->child(0), 0);
  EXPECT_EQ(Window().Pages().Front()->GetForm().Title().back(), '3') << "it leads to its field";

  Tree()->topLevelItem(0)->setSelected(true);  // the whole channel
  Press("TakeSelected");
  EXPECT_EQ(Core().conf.Digital[2].NOMBRE, "gate");
  EXPECT_EQ(Core().conf.Digital[2].ALARM[1].common.valid.SEMANA, 3);
  EXPECT_EQ(Core().conf.Digital[3].NOMBRE, "");
  EXPECT_EQ(Rows().size(), 4);
  Press("TakeAll");
  EXPECT_EQ(Name(), "pump") << "the page in front shows it";
  EXPECT_EQ(Core().conf.Gprs.APN_PASS, "one");
  EXPECT_EQ(Summary(), "Both hold the same.");
}

TEST_F(Comparing, ReadsTheLoggerBesideThePages) {
  AddLogger(sim::Model::BP);
  Connect();
  Window().GoTo("E_Digital_2");
  Core().PageOf(PageId::E_Digital)->GetForm().Get<TextBox>("Nombre").Type("door");
  Tool("Comparar")->trigger();
  Choose("Side1", "the logger");
  EXPECT_EQ(Summary(), "The logger is being read.");
  loop.RunFor(seconds(10));
  EXPECT_GT(Rows().size(), 20);
  EXPECT_EQ(Name(), "door");
  EXPECT_TRUE(Window().isWindowModified()) << "what stood on the pages is as unsaved as before";
  EXPECT_FALSE(Core().WhereFrom().isKnown);
  Press("TakeAll");
  EXPECT_EQ(Core().conf.General.DNAME, logger->Conf().name);
  EXPECT_EQ(Summary(), "Both hold the same.");
}

TEST_F(Comparing, ACutFileAndAnotherModelAreTold) {
  Core().ConfFilePath = Path("whole.ocf");
  ASSERT_TRUE(Core().SaveConf().Ok());
  const std::string whole = files.Read(Path("whole.ocf")).value();
  files.Create(Path("cut.ocf"));
  files.Write(Path("cut.ocf"), whole.substr(0, whole.size() / 2));
  Tool("Comparar")->trigger();
  auto* window = static_cast<CompareWindow*>(Compared());
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
  /// Chooses from the menu of the channel what starts with some words.
  void Run(const QString& words) {
    QMenu* menu = Tool("Canal")->menu();
    menu->aboutToShow();
    for (QAction* action : menu->actions())
      if (action->text().startsWith(words)) return action->trigger();
    ADD_FAILURE() << "nothing begins with " << FromQt(words);
  }
  const AlarmBlock& Alarm(int channel, int config) {
    return Core().conf.Digital[channel].ALARM[config].common;
  }
};

TEST_F(Copying, AnAlarmGoesIntoAnotherAndAChannelKeepsItsName) {
  Window().GoTo("E_Digital_2");
  Window().Pages().Front()->GetForm().Get<OptionButton>("Config1").SetSelected(true);
  Run("Copy alarm 1 of digital input 2");
  Window().GoTo("E_Digital_5");
  Window().Pages().Front()->GetForm().Get<OptionButton>("Config3").SetSelected(true);
  Run("Paste alarm 1 of digital input 2 as alarm 3 of digital input 5");
  EXPECT_EQ(Alarm(5, 3), Alarm(2, 1));
  EXPECT_NE(Alarm(5, 1), Alarm(2, 1));
  EXPECT_EQ(On<QLineEdit>(*desktop, "TextoAlarma")->text(), "open");
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
  ModalScript modals;
  modals.Expect([](QWidget* modal) {
    auto* what = modal->findChild<QComboBox*>("What");
    what->setCurrentIndex(what->findText("alarm 1 alone"));
    EXPECT_FALSE(modal->findChild<QPushButton*>("Apply")->isEnabled());
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
