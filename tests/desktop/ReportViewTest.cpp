#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>

#include "OpenWindow.h"

namespace ostrel {
namespace {

class ReportViews : public OpenWindow {
 protected:
  template <class Widget>
  Widget* Find(const char* name) {
    return Window().Pages().Front()->findChild<Widget*>(name);
  }
};

TEST_F(ReportViews, PasswordsAreDotsUntilTheBoxIsChecked) {
  Window().GoTo("GPRS");
  for (const auto* name : {"TextAPNPassword", "TextFTPPass"})
    EXPECT_EQ(Find<QLineEdit>(name)->echoMode(), QLineEdit::Password);
  Find<QAbstractButton>("CheckMostrar")->click();
  EXPECT_EQ(Find<QLineEdit>("TextFTPPass")->echoMode(), QLineEdit::Normal);
}

TEST_F(ReportViews, LinesThatAreNotSentAreGrey) {
  for (int place = 0; place < 42; ++place)
    Core().conf.Macro.LINE[place] = "F1={" + std::to_string(place) + "}";
  Core().PageOf(PageId::Macros)->LoadData();
  Window().GoTo("Macros");
  const auto* list = Find<QListWidget>("MacroPool");
  ASSERT_EQ(list->count(), 42);
  for (const auto& [row, isGrey] : {std::pair{0, false}, {39, false}, {40, true}, {41, true}})
    EXPECT_EQ(!list->item(row)->toolTip().isEmpty(), isGrey) << row;
}

TEST_F(ReportViews, TheVoiceListIsPastedAndFiltered) {
  Window().GoTo("Aut_Voz");
  QGuiApplication::clipboard()->setText("600\n611\n622\n7 11");
  Find<QAbstractButton>("PasteBut")->click();
  auto* list = Find<QListWidget>("PhoneList");
  ASSERT_EQ(list->count(), 4);
  list->setCurrentRow(0);
  const auto shown = [list] {
    QString rows;
    for (int row = 0; row < list->count(); ++row)
      if (!list->item(row)->isHidden()) rows += list->item(row)->text() + " ";
    return rows.toStdString();
  };
  Find<QLineEdit>("Filter")->setText("11");
  EXPECT_EQ(shown(), "611 711 ");
  Find<QAbstractButton>("Del")->click();
  EXPECT_EQ(list->count(), 4) << "what is out of view is selected no more";
  Core().PageOf(PageId::Aut_Voz)->GetForm().Get<TextBox>("PhoneText").Type("8119");
  Find<QAbstractButton>("Add")->click();
  EXPECT_EQ(shown(), "611 711 8119 ") << "what comes later is filtered, too";
  Core().PageOf(PageId::Aut_Voz)->GetForm().Get<TextBox>("PhoneText").Type("622");
  Find<QAbstractButton>("SearchBut")->click();
  QCoreApplication::processEvents();
  EXPECT_EQ(list->currentRow(), 2);
  EXPECT_EQ(shown(), "600 611 622 711 8119 ") << "what was searched for comes into view";
}

}  // namespace
}  // namespace ostrel
