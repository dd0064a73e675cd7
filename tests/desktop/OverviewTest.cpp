#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableWidget>

#include "OpenWindow.h"
#include "Spanish.h"
#include "blocks/Configuration.h"
#include "desktop/program/Language.h"
#include "desktop/window/NodeDelegate.h"
#include "platform/virtual/VirtualFiles.h"
#include "shell/check/CheckRules.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

/// What the keys of a shortcut do: the platform of the tests does not bring them there.
void PressShortcut(QWidget* widget, const QKeySequence& keys) {
  for (auto* shortcut : widget->findChildren<QShortcut*>())
    if (shortcut->key() == keys) return shortcut->activated();
  ADD_FAILURE() << "no shortcut " << FromQt(keys.toString());
}

class OverviewOf : public OpenWindow {
 protected:
  explicit OverviewOf(const std::string& model) : OpenWindow(model, "2") {
    Window().show();
    Window().activateWindow();
    QCoreApplication::processEvents();
  }

  void GoTo(const std::string& key) { Window().GoTo(key); }
  void Pass() { loop.RunFor(seconds(1)); }
  QString NoteOf(const std::string& control) {
    QWidget* widget = On(*desktop, control);
    return widget->property("noted").toBool() ? widget->toolTip() : QString();
  }
  /// What lies open beside the control that has the focus.
  QString Bubble() {
    auto* bubble = Window().Pages().Front()->findChild<QLabel*>("NoteBubble");
    return bubble->isVisible() ? bubble->text() : QString();
  }
  QTreeWidgetItem* Node(const QString& key) {
    for (QTreeWidgetItemIterator it(&Window().Tree().Tree()); *it; ++it)
      if ((*it)->data(0, kNodeKey).toString() == key) return *it;
    throw std::runtime_error("no such node");
  }
  int Marks(const QString& key) { return Node(key)->data(0, kNodeMarks).toInt(); }
  QTreeWidget* Findings() { return Window().findChild<QTreeWidget*>("FindingList"); }
  QTableWidget* Table() { return Window().findChild<QTableWidget*>("GroupTable"); }
};

struct OverviewBP : OverviewOf {
  OverviewBP() : OverviewOf("Tavro BP") {}
};
struct OverviewS100 : OverviewOf {
  OverviewS100() : OverviewOf("Ostrel S100") {}
};

TEST_F(OverviewBP, ABadNumberSaysWhatItCountsAsAndACommaIsPutRight) {
  GoTo("E_Analog_1");
  const QRect place = On(*desktop, "IE")->geometry();
  Type(On(*desktop, "IE"), "1.2.3");
  EXPECT_EQ(Bubble(), "This is not a number of the kind expected here. 1.2 is kept.");
  auto* strip = Window().findChild<QLabel*>("Notes");
  On(*desktop, "EqIE")->setFocus();
  QCoreApplication::processEvents();
  EXPECT_TRUE(strip->isVisible() && strip->text().contains("1.2 is kept.")) << "for all to see";
  EXPECT_EQ(On(*desktop, "IE")->geometry(), place) << "a mark takes no room";
  Type(On(*desktop, "FE"), "0,9");
  EXPECT_EQ(Bubble(), "") << "the other box has the focus";
  EXPECT_EQ(On<QLineEdit>(*desktop, "FE")->text(), "0,9") << "it is being typed";
  On(*desktop, "EqIE")->setFocus();
  EXPECT_EQ(On<QLineEdit>(*desktop, "FE")->text(), "0.9");
  EXPECT_EQ(NoteOf("FE"), "");
  Type(On(*desktop, "FE"), "1,5");
  GoTo("General");
  EXPECT_FLOAT_EQ(Core().conf.Analog[1].FE, 1.5F);
}

/// A whole field rounds what is typed, and one of few octets has no room for all of it.
TEST_F(OverviewBP, ANoteTellsWhatAFieldKeepsOfANumber) {
  GoTo("LTimer0_3");
  constexpr const char* kPeriod = "Period(0)";
  Click(On(*desktop, "TimerHabil(0)"));
  Type(On(*desktop, kPeriod), "7");
  desktop->Navigator().CommitFront();
  const std::pair<const char*, std::pair<const char*, std::int16_t>> kCases[] = {
      {"40000", {"This number does not fit here. 7 is kept.", 7}},
      {"2,5", {"This is not a number of the kind expected here. 2 is kept.", 2}},
      {"3", {"", 3}},
      {"50000", {"This number does not fit here. 3 is kept.", 3}}};
  for (const auto& [typed, kept] : kCases) {
    Type(On(*desktop, kPeriod), typed);
    EXPECT_EQ(NoteOf(kPeriod), kept.first) << typed;
    loop.RunFor(seconds(2));  // the window looks whether anything is unsaved
    EXPECT_EQ(NoteOf(kPeriod), kept.first) << typed;
    desktop->Navigator().CommitFront();
    EXPECT_EQ(Core().conf.LTimer[0].PERIOD, kept.second) << typed;
  }
  Type(On(*desktop, kPeriod), "5");
  loop.RunFor(seconds(2));
  Type(On(*desktop, kPeriod), "50000");
  EXPECT_EQ(NoteOf(kPeriod), kCases[3].second.first) << "5 was looked at, and not taken";
}

TEST_F(OverviewBP, FindingsStandAtTheirFieldsAndAPanelLeadsThere) {
  GoTo("E_Analog_2");
  Type(On(*desktop, "Nombre"), "Tank, upper");
  Click(On(*desktop, "Int_4_20"));
  Click(On(*desktop, "Config1"));
  Click(On(*desktop, "AlarmaHabil"));
  Type(On(*desktop, "Minimo"), "9");
  Type(On(*desktop, "Persist"), "100000");
  Pass();
  EXPECT_TRUE(NoteOf("Nombre").startsWith("A comma ends the text"));
  EXPECT_TRUE(NoteOf("FE").startsWith("Start of scale and full scale are the same"));
  EXPECT_TRUE(NoteOf("Minimo").startsWith("The minimum 9 lies above the maximum 0"));
  EXPECT_TRUE(NoteOf("Persist").contains("0 to 10000 readings"));
  EXPECT_EQ(Bubble(), NoteOf("Persist"));
  EXPECT_EQ(Marks("E_Analog_2"), kMarkError | kMarkChanged | kMarkAlarm);
  EXPECT_EQ(Marks("E_Analog"), Marks("E_Analog_2")) << "its group shows them when it is closed";
  EXPECT_EQ(Marks("E_Analog_1"), 0);
  auto* strip = Window().findChild<QLabel*>("Notes");
  EXPECT_TRUE(strip->text().contains("Start of scale") && strip->text().endsWith("2 more"));
  GoTo("E_Analog");
  EXPECT_FALSE(strip->isVisible()) << "a table is no page";
  GoTo("E_Analog_1");
  EXPECT_EQ(NoteOf("Nombre"), "") << "it is about a neighbour";
  GoTo("E_Analog_2");
  EXPECT_TRUE(strip->isVisible());
  Click(On(*desktop, "Config0"));
  Pass();
  EXPECT_EQ(NoteOf("Persist"), "") << "it is about another configuration";
  GoTo("General");
  const auto rows = Findings()->findItems("100000", Qt::MatchContains, 3);
  ASSERT_EQ(rows.size(), 1);
  EXPECT_EQ(rows[0]->text(1), "Analog input 2");
  EXPECT_EQ(rows[0]->text(2), "Alarm 1, persistence");
  Findings()->itemActivated(rows[0], 0);
  EXPECT_EQ(On<QLineEdit>(*desktop, "Persist")->text(), "100000");
  EXPECT_EQ(QApplication::focusWidget(), On(*desktop, "Persist"));
  Type(On(*desktop, "Persist"), "3");
  Pass();
  EXPECT_EQ(NoteOf("Persist"), "");
  EXPECT_TRUE(Window().Pages().Front()->findChildren<QWidget*>("NoteMark").size() > 0);
  Core().conf = DeviceConf{};
  Core().ShowConfiguration(Core().conf);
  Pass();
  EXPECT_TRUE(Window().Pages().Front()->findChildren<QWidget*>("NoteMark").isEmpty())
      << "marks go with what they told";
  EXPECT_FALSE(strip->isVisible());
  EXPECT_TRUE(Findings()->findItems("100000", Qt::MatchContains, 3).empty());
}

TEST_F(OverviewBP, UnitsStandBesideTheBoxes) {
  const auto unit = [this](const char* control) {
    return Window().Pages().Front()->findChild<QLabel*>(QString("Unit of ") + control);
  };
  GoTo("E_Analog_0");
  EXPECT_EQ(unit("Persist")->text(), "readings");
  Type(On(*desktop, "Unidad"), "m");
  EXPECT_EQ(unit("Maximo")->text(), "m");
  GoTo("E_Digital_0");
  EXPECT_EQ(unit("Rearm")->text(), "s");
  GoTo("Caudal_0");
  EXPECT_EQ(unit("Persist")->text(), "cycles");
}

TEST_F(OverviewS100, TheTreeHasNamesAndFindsThem) {
  Core().conf.Digital[1].NOMBRE = "Pump house";
  GoTo("Modulo_5");
  Press(On(*desktop, "ModeCombo"), Qt::Key_Down);
  Type(On(*desktop, "D_Nombre"), "Gate");
  Pass();
  EXPECT_EQ(Node("E_Digital_1")->data(0, kNodeName), "Pump house");
  EXPECT_EQ(Node("E_Digital_1")->text(0), "1") << "the text of the node stays as it is";
  EXPECT_EQ(Node("Modulo_5")->data(0, kNodeName), "Gate");
  EXPECT_TRUE(Node("Modulo_5")->toolTip(0).contains("changed"));
  const auto isRed = [this](const QString& key) {
    return Node(key)->data(0, Qt::ForegroundRole).isValid();
  };
  EXPECT_FALSE(isRed("Modulo_6"));
  for (const int mode : {1, 0}) {
    Core().conf.Modulo[6].MODO = static_cast<std::int16_t>(mode);
    Pass();
    EXPECT_EQ(isRed("Modulo_6"), mode != 0);
  }
  Window().Tree().findChild<QLineEdit*>("Filter")->setText("pump");
  EXPECT_FALSE(Node("E_Digital_1")->isHidden());
  EXPECT_TRUE(Node("E_Digital_0")->isHidden());
  EXPECT_TRUE(Node("Modulo_5")->isHidden());
  EXPECT_TRUE(Node("E_Digital")->isExpanded());
  Window().Tree().findChild<QLineEdit*>("Filter")->clear();
  EXPECT_FALSE(Node("E_Digital")->isExpanded()) << "as it was";
  dialogs.ChoosePath(Path("a.ocf"));
  for (QAction* tool : Window().findChildren<QAction*>())
    if (tool->shortcut() == QKeySequence::Save) tool->trigger();
  Pass();
  EXPECT_EQ(Marks("Modulo_5") & kMarkChanged, 0) << "it is saved";
}

TEST_F(OverviewS100, ModeAndAddressAreReachedByKeyboard) {
  GoTo("Modulo_3");
  std::set<QString> keys;
  for (const auto* name : {"LabelMode", "LabelAddress", "LabelInput", "LabelGroup"}) {
    const QString text = On<QLabel>(*desktop, name)->text();
    ASSERT_NE(text.indexOf('&'), -1) << name;
    EXPECT_TRUE(keys.insert(text.mid(text.indexOf('&') + 1, 1).toLower()).second) << name;
  }
  Press(On(*desktop, "ModeCombo"), Qt::Key_Down);
  EXPECT_EQ(On<QStackedWidget>(*desktop, "SSTab1")->currentIndex(), 1);
  EXPECT_TRUE(On(*desktop, "D_Nombre")->isVisible());
  EXPECT_FALSE(On(*desktop, "A_Nombre")->isVisible());
  auto* address = On<QComboBox>(*desktop, "AddressCombo");
  address->setFocus();
  Press(address, Qt::Key_F, "f");
  GoTo("General");
  EXPECT_EQ(Core().conf.Modulo[3].DIR, 15);
}

TEST_F(OverviewS100, AScaleIsToldInWords) {
  GoTo("Modulo_3");
  const auto words = [&] {
    return FromQt(Window().Pages().Front()->findChild<QLabel*>("A_ScaleWords")->text());
  };
  for (int i = 0; i < 4; ++i) Press(On(*desktop, "ModeCombo"), Qt::Key_Down);
  EXPECT_EQ(words(), "Both signals are the same: there is no scale.");
  Click(On(*desktop, "A_Int_4_20"));
  for (const auto& [box, text] : {std::pair{"A_IE", "4"}, {"A_FE", "20"}, {"A_EqFE", "6.5"}})
    Type(On(*desktop, box), text);
  EXPECT_EQ(words(), "4 mA is 0, 20 mA is 6.5");
  Type(On(*desktop, "A_Unidad"), "m");
  EXPECT_EQ(words(), "4 mA is 0 m, 20 mA is 6.5 m");
  Click(On(*desktop, "A_Int_0_10"));
  EXPECT_EQ(words(), "4 V is 0 m, 20 V is 6.5 m");
}

TEST_F(OverviewS100, AGroupIsATableOfItsChannelsThatOpensThem) {
  ConfModulo& input = Core().conf.Modulo[2];
  input.MODO = kModeAnalog;
  input.A.NOMBRE = "Level";
  input.A.INTERFAZ = 1;
  input.D.NOMBRE = "of another mode";
  input.A.ALARM[0].common.HABIL = kTrue;
  GoTo("Modulo");
  EXPECT_FALSE(Window().Pages().isVisible());
  ASSERT_EQ(Table()->rowCount(), 96);
  QStringList cells;
  for (int column = 0; column < Table()->columnCount(); ++column)
    if (const QString text = Table()->item(2, column)->text(); !text.isEmpty())
      cells << Table()->horizontalHeaderItem(column)->text() + "=" + text;
  const QString row = cells.join(u' ');
  for (const auto* part :
       {"Channel=2", "Mode=analog", "Name=Level", "Interface=4/20 mA", "Alarm=yes"})
    EXPECT_TRUE(row.contains(part)) << part << " in " << FromQt(row);
  Table()->cellActivated(2, 1);
  EXPECT_TRUE(Window().Pages().isVisible());
  EXPECT_EQ(On<QLineEdit>(*desktop, "A_Nombre")->text(), "Level");
  GoTo("Caudal");
  EXPECT_TRUE(On(*desktop, "ComboT(0)")->isVisible()) << "the page of the group is there, too";
  EXPECT_EQ(Table()->rowCount(), 2);
}

TEST_F(OverviewBP, TimersAreTablesThatOpenThem) {
  Core().conf.LTimer[6] = {kTrue, 5, {}};
  GoTo("LTimer");
  EXPECT_EQ(Table()->rowCount(), 16);
  Table()->cellActivated(6, 0);
  EXPECT_TRUE(Window().Pages().isVisible());
  EXPECT_EQ(On<QLineEdit>(*desktop, "Period(2)")->text().trimmed(), "5");
  Type(On(*desktop, "Period(2)"), "9");
  GoTo("Timer");
  auto* timers = Window().findChild<QWidget*>("Timers")->findChild<QTableWidget*>();
  ASSERT_TRUE(timers->isVisible());
  EXPECT_EQ(timers->item(0, 0)->text() + ": " + timers->item(0, 1)->text(),
            "long timer 6: every 9 days");
  GoTo("General");
  EXPECT_FALSE(timers->isVisible());
  timers->cellActivated(0, 0);
  EXPECT_EQ(On<QLineEdit>(*desktop, "Period(2)")->text().trimmed(), "9");
  GoTo("Timer");
  DeviceConf conf = Core().conf;
  conf.LTimer[6].HABIL = kFalse;
  conf.LTimer[9] = {kTrue, 7, {}};
  Core().ShowConfiguration(conf);
  Pass();
  EXPECT_EQ(timers->item(0, 1)->text(), "every 7 days") << "the table follows";
  timers->cellActivated(0, 0);
  EXPECT_EQ(On<QLineEdit>(*desktop, "Period(1)")->text().trimmed(), "7");
}

TEST_F(OverviewBP, AListOfActionsIsCopiedToAnother) {
  ConfDigital& input = Core().conf.Digital[4];
  input.ALARM[0].common.HABIL = kTrue;
  input.ALARM[0].common.ACTHI[0] = 13;
  input.ALARM[0].common.ACTHI[1] = 8;
  input.ALARM[0].common.ACTLO[0] = 3;
  GoTo("E_Digital_4");
  const auto press = [&](const char* list, const char* name) {
    dialogs.OnModal([&, name](Modal& modal) {
      Form& form = AsForm(modal);
      const std::unique_ptr<FormView> view(MakeView(form, Window().Context()));
      view->findChild<QPushButton*>(name)->click();
      EXPECT_LE(form.Get<ListBox>("DeviceList").Rows().size(), std::size_t{kActionPlaces});
      form.Get<Button>("OKButton").Click();
    });
    Click(On(*desktop, list));
  };
  press("BotonAlto", "CopyList");
  press("BotonBajo", "PasteList");
  EXPECT_EQ(input.ALARM[0].common.ACTLO, input.ALARM[0].common.ACTHI);
  QApplication::clipboard()->setText("nothing of the kind");
  press("BotonBajo", "PasteList");
  EXPECT_EQ(input.ALARM[0].common.ACTLO, input.ALARM[0].common.ACTHI);
  QApplication::clipboard()->setText(QString("9 - more than a list takes\n").repeated(20));
  press("BotonBajo", "PasteList");
  EXPECT_EQ(CountActions(input.ALARM[0].common.ACTLO), kActionPlaces);
}

TEST_F(OverviewBP, ActionsAreCountedFoundMovedAndTakenOut) {
  GoTo("E_Digital_4");
  Type(On(*desktop, "Nombre"), "Door");
  Click(On(*desktop, "AlarmaHabil"));
  EXPECT_EQ(On(*desktop, "BotonAlto")->accessibleName(), "High value (0)");
  dialogs.OnModal([&](Modal& modal) {
    Form& form = AsForm(modal);
    EXPECT_NE(form.Title().find("Door"), std::string::npos) << form.Title();
    const std::unique_ptr<FormView> view(MakeView(form, Window().Context()));
    view->show();
    auto* offered = view->findChild<QListWidget*>("RefList");
    auto* chosen = view->findChild<QListWidget*>("DeviceList");
    view->findChild<QLineEdit*>("Search")->setText("macro 12");
    EXPECT_EQ(offered->currentRow(), 12);
    EXPECT_TRUE(offered->isRowHidden(0));
    PressShortcut(offered, Qt::Key_Return);
    view->findChild<QLineEdit*>("Search")->setText("macro 3");
    DoubleClick(offered->viewport(), offered->visualItemRect(offered->currentItem()).center());
    offered->setCurrentRow(7);
    Click(view->findChild<QPushButton*>("AddButton"));
    ASSERT_EQ(chosen->count(), 3);
    chosen->setCurrentRow(2);
    PressShortcut(chosen, Qt::AltModifier | Qt::Key_Up);
    chosen->model()->moveRow({}, 0, {}, 3);  // as a drop does
    chosen->setCurrentRow(1);
    PressShortcut(chosen, Qt::Key_Delete);
    form.Get<Button>("OKButton").Click();
  });
  Click(On(*desktop, "BotonAlto"));
  const ActionList& actions = Core().conf.Digital[4].ALARM[0].common.ACTHI;
  EXPECT_EQ(actions[0], 8);
  EXPECT_EQ(actions[1], 13);
  EXPECT_EQ(actions[2], 0);
  EXPECT_EQ(On(*desktop, "BotonAlto")->accessibleName(), "High value (2)");
}

/// All that the model's description says to people, and what the check says of a wild
/// configuration.
TEST(OwnWords, HaveSpanishForWhatTheModelSays) {
  std::set<std::string> words;
  VirtualFiles files;
  for (const std::string_view name : TargetNamesOffered()) {
    TargetProfile profile;
    SelectTarget(profile, name);
    ModelConfiguration wild{profile, {}};
    for (const Field& field : FieldsOf(wild.conf, profile)) {
      words.insert(std::string(field.meta.words));
      words.insert(std::string(field.meta.unit));
      words.insert(std::string(field.id.section->words));
      for (const CodeWords& code : field.meta.codes) words.insert(std::string(code.words));
      SetFieldText(field.value, std::holds_alternative<std::string*>(field.value) ? "a,b" : "99");
      SetFieldText(field.value, "True");
    }
    const IniClass noFile(files);
    const auto found = Examine(
        Examined(wild, 0, noFile, [](std::string_view text) { return std::string(text); }), {});
    for (const FoundByRule& one : found) words.insert(one.finding.sentence.text);
  }
  EXPECT_GT(words.size(), 100u);
  ExpectSpanish(words, {"general", "flag", "s", "V", "bit/s", "4/20 mA", "0-5 V", "0-10 V",
                        "digital", "16 bits", "32 bits", "APN"});
}

}  // namespace
}  // namespace ostrel
