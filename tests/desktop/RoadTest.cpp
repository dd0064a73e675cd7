#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QToolBar>

#include "Input.h"
#include "WindowWorld.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

class Road : public testing::Test, protected WindowWorld<VirtualLoop> {
 protected:
  ~Road() override { UseLanguage("en"); }

  /// Accepts a modal form or box by its button of a name or of a text.
  static void Accept(QWidget* modal, const QString& button) {
    for (auto* candidate : modal->findChildren<QPushButton*>()) {
      QString text = candidate->text();
      if (candidate->objectName() == button || text.remove(u'&') == button) return Click(candidate);
    }
    ADD_FAILURE() << "no button " << FromQt(button);
  }
  void ClickNode(const std::string& group, const std::string& key) {
    QTreeWidget& tree = desktop->Window().Tree().Tree();
    for (const std::string& each : {group, key})
      for (QTreeWidgetItemIterator it(&tree); *it; ++it)
        if ((*it)->data(0, Qt::UserRole).toString() == ToQt(each)) {
          if (each == group) (*it)->setExpanded(true);
          tree.scrollToItem(*it);
          if (each == key) Click(tree.viewport(), tree.visualItemRect(*it).center());
        }
  }
  void ClickTool(int index) {
    auto* bar = desktop->Window().findChild<QToolBar*>("Tools");
    Click(bar->widgetForAction(bar->actions().at(index)));
  }
  void ChooseFile(const std::string& name) {
    modals.Expect([this, name](QWidget* modal) {
      auto* dialog = qobject_cast<QFileDialog*>(modal);
      ASSERT_NE(dialog, nullptr);
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(Path(name)));
      Press(dialog->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
  }
  std::string Status() { return FromQt(On<QLabel>(*desktop, "ComStat")->text()); }

  ModalScript modals;
  std::unique_ptr<Desktop> desktop;

 public:
  // The stages of the road, each from the state in which the former one leaves the window.
  void StartOnAnEmptyStore();
  void ChooseTheModel();
  void Download();
  void EditATelephone();
  void EditAnAlarm();
  void Upload();
  void SaveAndLeave();
  void StartAgain();
};

void Road::StartOnAnEmptyStore() {
  UseLanguage("es");  // as an earlier window may have left it
  modals.Expect([this](QWidget* modal) {
    const QList<QAction*> tools = desktop->Window().findChild<QToolBar*>("Tools")->actions();
    EXPECT_EQ(QStringList({tools[0]->text(), tools[1]->text(), tools[2]->text(),
                           tools.back()->menu()->actions().back()->text()}),
              QStringList({Words::tr("Open"), Words::tr("Save"), Words::tr("Save as"),
                           Words::tr("Language")}))
        << "one language while the question for it stands";
    Press(modal->findChild<QComboBox*>("ComboLang"), Qt::Key_Down);
    Accept(modal, "CommandOk");
  });
  modals.Expect([](QWidget* modal) {
    EXPECT_EQ(qobject_cast<QMessageBox*>(modal)->text(),
              "Esta version del configurador es universal. Seleccione en 'Dispositivo' el modelo "
              "que desea configurar.");
    Press(modal, Qt::Key_Return);
  });
  desktop = Make();
  desktop->Start("");
  desktop->Window().show();
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(Stored("Idioma"), "2");
  EXPECT_EQ(desktop->Core().profile.TargetName, "Ostrel KA1");
  EXPECT_EQ(desktop->Window().Pages().Front()->GetForm().Name(), "TargetSelect");
}

void Road::ChooseTheModel() {
  auto* models = On<QComboBox>(*desktop, "ComboTarget");
  while (models->currentText() != "Ostrel VR200") Press(models, Qt::Key_Down);
  Click(On(*desktop, "CommandChange"));
  EXPECT_EQ(Stored("Target"), "Ostrel VR200");
  EXPECT_TRUE(desktop->Core().profile.IsVR200);
}

void Road::Download() {
  ClickNode("Tavro", "General");
  Click(On(*desktop, "IniCom"));
  loop.RunFor(seconds(10));
  ASSERT_EQ(Status(), "Comunicacion iniciada");
  Click(On(*desktop, "Leer"));
  loop.RunFor(minutes(3));
  ASSERT_EQ(Status(), "Configuracion descargada con exito");
  EXPECT_EQ(FromQt(On<QLineEdit>(*desktop, "NameBox")->text()), desktop->Core().conf.General.DNAME);
  EXPECT_FALSE(desktop->Core().conf.General.DNAME.empty());
  EXPECT_FALSE(desktop->Window().isWindowModified());
  EXPECT_EQ(QDir(folder.filePath("backups")).entryList({"*.ocf"}).size(), 1);
}

void Road::EditATelephone() {
  auto* list = On<QTableWidget>(*desktop, "ListaTlf");
  DoubleClick(list->viewport(), list->visualItemRect(list->item(0, 0)).center());
  Type(On(*desktop, "NewTlf"), "+34611222333");
  Click(On(*desktop, "CheckMask"));
  auto* mask = On<QListWidget>(*desktop, "MaskSelection");
  mask->setCurrentRow(1);
  Press(mask, Qt::Key_Space);
  Click(On(*desktop, "Anadir"));
  Click(list->viewport(), list->visualItemRect(list->item(0, 0)).center());
  Click(On(*desktop, "Borrar"));
  loop.RunFor(seconds(2));
  EXPECT_EQ(list->item(list->rowCount() - 1, 0)->text(), "+34611222333");
  EXPECT_TRUE(desktop->Window().isWindowModified());
}

void Road::EditAnAlarm() {
  ClickNode("E_Digital", "E_Digital_3");
  Click(On(*desktop, "Config1"));
  if (!On<QCheckBox>(*desktop, "AlarmaHabil")->isChecked()) Click(On(*desktop, "AlarmaHabil"));
  Type(On(*desktop, "TextoAlarma"), "Puerta");
  Type(On(*desktop, "Persist"), "7");
  Click(On(*desktop, "NotGPRS"));
  if (!On<QCheckBox>(*desktop, "HorarioHabil")->isChecked()) Click(On(*desktop, "HorarioHabil"));
  modals.Expect([](QWidget* modal) {
    auto* offered = modal->findChild<QListWidget*>("RefList");
    Click(offered->viewport(), offered->visualItemRect(offered->item(4)).center());
    Click(modal->findChild<QPushButton*>("AddButton"));
    Accept(modal, "OKButton");
  });
  Click(On(*desktop, "BotonAlto"));
  EXPECT_EQ(modals.Left(), 0u);
  ClickNode("Tavro", "General");
}

void Road::Upload() {
  modals.Expect([](QWidget* modal) {
    EXPECT_FALSE(modal->findChild<QLabel*>("Doubt")) << "nothing speaks against it";
    AgreeToWrite(modal, true);
  });
  Click(On(*desktop, "Escribir"));
  loop.RunFor(minutes(9));
  ASSERT_EQ(Status(), "Configuracion escrita con exito");
  EXPECT_EQ(logger->UploadsTaken(), 1u);
  const sim::Configuration& held = logger->Conf();
  EXPECT_EQ(held.digitals[3].alarms[1].text, "Puerta");
  const bool hasPhone = std::any_of(held.phones.begin(), held.phones.end(), [](const auto& phone) {
    return phone.number == "+34611222333";
  });
  EXPECT_TRUE(hasPhone);
  EXPECT_FALSE(desktop->Window().isWindowModified());
}

void Road::SaveAndLeave() {
  Type(On(*desktop, "NameBox"), "Station 9");
  loop.RunFor(seconds(2));
  EXPECT_TRUE(desktop->Window().isWindowModified());
  modals.Expect([](QWidget* modal) { Accept(modal, "Cancelar"); });
  EXPECT_FALSE(desktop->Window().close());
  ChooseFile("station");
  ClickTool(1);
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_TRUE(files.Exists(Path("station.ocf")));
  EXPECT_FALSE(desktop->Window().isWindowModified());
  EXPECT_TRUE(desktop->Window().close());
  EXPECT_EQ(Stored("ComPort"), "7");
  desktop.reset();
}

void Road::StartAgain() {
  Stored("Idioma") = "2";
  desktop = Make();
  desktop->Start(Path("station.ocf"));
  desktop->Window().show();
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(On<QPushButton>(*desktop, "Leer")->accessibleName(), "Read");
  EXPECT_EQ(On<QLineEdit>(*desktop, "NameBox")->text(), "Station 9");
  auto* list = On<QTableWidget>(*desktop, "ListaTlf");
  QStringList words;
  for (int column = 0; column < 4; ++column)
    words << list->item(list->rowCount() - 1, column)->text();
  EXPECT_EQ(words, QStringList({"+34611222333", "1", "Administrator", "DI1"}));
  ClickNode("E_Digital", "E_Digital_3");
  Click(On(*desktop, "Config1"));
  EXPECT_EQ(On<QLineEdit>(*desktop, "TextoAlarma")->text(), "Puerta");
  EXPECT_EQ(On<QLineEdit>(*desktop, "Persist")->text().trimmed(), "7");
  EXPECT_TRUE(On<QRadioButton>(*desktop, "NotGPRS")->isChecked());
  modals.Expect([](QWidget* modal) {
    auto* chosen = modal->findChild<QListWidget*>("DeviceList");
    ASSERT_GT(chosen->count(), 0);
    EXPECT_EQ(chosen->item(chosen->count() - 1)->text(), "5 - Run macro 4");
    Press(modal, Qt::Key_Escape);
  });
  Click(On(*desktop, "BotonAlto"));
  EXPECT_EQ(modals.Left(), 0u);
  loop.RunFor(seconds(2));
  EXPECT_FALSE(desktop->Window().isWindowModified());
  EXPECT_TRUE(desktop->Window().close());
}

TEST_F(Road, FromAnEmptyStoreThroughALoggerToAFileAndBack) {
  AddLogger(sim::Model::VR200);
  port.SetPaced(true);
  for (const auto stage :
       {&Road::StartOnAnEmptyStore, &Road::ChooseTheModel, &Road::Download, &Road::EditATelephone,
        &Road::EditAnAlarm, &Road::Upload, &Road::SaveAndLeave, &Road::StartAgain})
    if (!HasFailure()) (this->*stage)();
}

TEST_F(Road, AsksForTheAccessCodeOfALoggerBehindAModem) {
  StartBefore("Ostrel VR200", "1");
  AddLogger(sim::Model::VR200, {}, [](auto& options) { options.modem = true; });
  desktop = Make();
  desktop->Start("");
  desktop->Window().show();
  ClickNode("Tavro", "General");
  Click(On(*desktop, "ModemCheck"));
  Type(On(*desktop, "CallNum"), "600123123");
  modals.Expect([this](QWidget* modal) {
    Type(modal->findChild<QLineEdit*>("PWText"), "x");
    modals.Expect([](QWidget* box) { Press(box, Qt::Key_Return); });
    Accept(modal, "Aceptar");
    Type(modal->findChild<QLineEdit*>("PWText"), "1234");
    Accept(modal, "Aceptar");
  });
  Click(On(*desktop, "IniCom"));
  loop.RunFor(minutes(2));
  EXPECT_EQ(modals.Left(), 0u);
  EXPECT_EQ(Status(), "Comunicacion iniciada");
}

}  // namespace
}  // namespace ostrel
