#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include "Input.h"
#include "WindowWorld.h"

namespace ostrel {
namespace {

using std::chrono::seconds;

class ExpansionView : public testing::Test, protected WindowWorld<VirtualLoop> {
 protected:
  ExpansionView() {
    StartBefore("Ostrel S100", "2");
    desktop = Make(&dialogs);
    desktop->Start("");
    desktop->Window().show();
    desktop->Window().GoTo("Modulo_3");
  }

  /// The colour of an input's node; not valid for that of all nodes.
  QVariant NodeColour(const QString& number) {
    const auto found =
        desktop->Window().Tree().Tree().findItems(number, Qt::MatchExactly | Qt::MatchRecursive);
    for (const QTreeWidgetItem* item : found)
      if (item->parent()->text(0) == "Expansions") return item->data(0, Qt::ForegroundRole);
    throw std::runtime_error("no such node");
  }

  VirtualDialogs dialogs;
  std::unique_ptr<Desktop> desktop;
};

TEST_F(ExpansionView, ModeAndAddressAreReachedByKeyboard) {
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
  desktop->Window().GoTo("General");
  EXPECT_EQ(desktop->Core().conf.Modulo[3].DIR, 15);
}

TEST_F(ExpansionView, InputsInUseAreRedInTheTree) {
  EXPECT_FALSE(NodeColour("3").isValid());
  Press(On(*desktop, "ModeCombo"), Qt::Key_Down);
  desktop->Window().GoTo("General");
  loop.RunFor(seconds(1));
  EXPECT_TRUE(NodeColour("3").isValid());
  EXPECT_FALSE(NodeColour("4").isValid());
  desktop->Core().conf.Modulo[3].MODO = 0;
  loop.RunFor(seconds(1));
  EXPECT_FALSE(NodeColour("3").isValid());
}

TEST_F(ExpansionView, AScaleIsToldInWords) {
  const auto words = [&] {
    return FromQt(desktop->Window().Pages().Front()->findChild<QLabel*>("A_ScaleWords")->text());
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

}  // namespace
}  // namespace ostrel
