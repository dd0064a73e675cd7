#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDirIterator>
#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QStackedWidget>

#include "OpenWindow.h"
#include "Spanish.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/program/Language.h"

namespace ostrel {
namespace {

bool TakesInput(const QWidget* widget) {
  return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
         qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
         qobject_cast<const QAbstractItemView*>(widget) ||
         qobject_cast<const QProgressBar*>(widget);
}

/// Whether a widget is a part that another one, which stands for a control, is made of.
bool IsPart(const QWidget* widget, const std::set<const QWidget*>& shown, const QWidget* view) {
  for (const QWidget* above = widget->parentWidget(); above && above != view;
       above = above->parentWidget())
    if (shown.contains(above) && TakesInput(above)) return true;
  return false;
}

/// What a widget is seen on: the view, or the tab that it stands on, which may be behind another.
const QWidget* Ground(const QWidget* widget, const QWidget* view) {
  for (const QWidget* above = widget->parentWidget(); above && above != view;
       above = above->parentWidget())
    if (qobject_cast<const QStackedWidget*>(above->parentWidget())) return above;
  return view;
}

class AllForms : public OpenWindow, public testing::WithParamInterface<std::string_view> {
 protected:
  AllForms() : OpenWindow(std::string(GetParam())) {}
  ~AllForms() override { UseLanguage("en"); }
};

TEST_P(AllForms, ShowEveryControlAndNothingElse) {
  for (Form* form : desktop->Core().Forms()) {
    const std::unique_ptr<FormView> view(MakeView(*form, desktop->Window().Context()));
    view->show();
    std::set<const QWidget*> shown(view->OwnWidgets());
    for (const ControlRef& control : form->Controls()) {
      const Face& face = FaceOf(control);
      const std::string name = form->Name() + "." + face.Name();
      QWidget* widget = view->WidgetOf(face.Name());
      if (std::holds_alternative<Timer*>(control)) {
        EXPECT_EQ(widget, nullptr) << name;
        continue;
      }
      ASSERT_NE(widget, nullptr) << name << " has no widget";
      EXPECT_TRUE(shown.insert(widget).second) << name;
      EXPECT_EQ(widget->isVisibleTo(Ground(widget, view.get())), face.Visible()) << name;
      EXPECT_NE(widget->parentWidget()->layout(), nullptr) << name << " is not laid out";
      EXPECT_TRUE(!TakesInput(widget) || !widget->accessibleName().isEmpty())
          << name << " has no accessible name";
    }
    for (const QWidget* widget : view->findChildren<QWidget*>()) {
      if (!TakesInput(widget) || IsPart(widget, shown, view.get())) continue;
      EXPECT_TRUE(shown.contains(widget) || shown.contains(widget->parentWidget()))
          << form->Name() << ": no control behind " << FromQt(widget->objectName()) << " "
          << widget->metaObject()->className();
    }
  }
}

TEST_P(AllForms, FitIntoTheSmallestScreenInBothLanguages) {
  MainWindow& window = desktop->Window();
  window.resize(1280, 720);
  window.show();
  for (const auto& [column, code] : {std::pair<std::int16_t, QString>{1, "es"}, {2, "en"}}) {
    desktop->Core().lang.SetSelectedLang(column);
    desktop->Core().LoadText();
    UseLanguage(code);
    window.Pages().Redraw();
    for (const auto* key :
         {"Tavro",     "General",     "E_Digital_0", "E_Analog_0", "Grupos",    "Flag_0",
          "MODBUS",    "MODBUS_0",    "Modulo_0",    "E_Aux_0",    "PCAT",      "Caudal",
          "Caudal_0",  "E_OneWire_0", "E_Math_0",    "CTimer0_3",  "LTimer0_3", "WTimer0_3",
          "MTimer0_3", "Firmware",    "Terminal",    "T_Real"}) {
      window.GoTo(key);
      QCoreApplication::processEvents();
      const FormView* view = window.Pages().Front();
      ASSERT_NE(view, nullptr) << key;
      const QSize room = window.Pages().size();
      const QSize needs = view->minimumSizeHint();
      EXPECT_LE(needs.width(), room.width()) << key << " " << FromQt(code);
      EXPECT_LE(needs.height(), room.height()) << key << " " << FromQt(code);
      for (const auto* button : view->findChildren<QAbstractButton*>()) {
        if (!button->isVisible()) continue;
        EXPECT_GE(button->width(), button->minimumSizeHint().width())
            << key << " " << FromQt(button->text());
      }
    }
  }
  UseLanguage("es");
  const QFont usual = QApplication::font();
  QFont larger = usual;
  larger.setPointSize(12);
  QApplication::setFont(larger);
  window.GoTo("General");
  window.Pages().Redraw();
  QCoreApplication::processEvents();
  EXPECT_LE(window.Pages().Front()->minimumSizeHint().width(), window.Pages().width()) << "larger";
  QApplication::setFont(usual);
}

INSTANTIATE_TEST_SUITE_P(Models, AllForms,
                         testing::Values("Ostrel KA1", "Ostrel KA2", "Ostrel VR200", "Ostrel S100",
                                         "Tavro BP", "Tavro BQ"),
                         [](const auto& model) {
                           std::string name(model.param);
                           return name.substr(name.find(' ') + 1);
                         });

/// The words that the window's sources hand to be translated.
std::set<std::string> WordsInSources(const QString& folder) {
  std::set<std::string> words;
  const QRegularExpression call(R"x(Words::tr\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+))x");
  const QRegularExpression literal(R"x("((?:[^"\\]|\\.)*)")x");
  for (QDirIterator files(folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
       files.hasNext();) {
    QFile file(files.next());
    if (!file.open(QIODevice::ReadOnly)) continue;
    const QString text = QString::fromUtf8(file.readAll());
    for (auto it = call.globalMatch(text); it.hasNext();) {
      QString joined;
      for (auto part = literal.globalMatch(it.next().captured(1)); part.hasNext();)
        joined += part.next().captured(1);
      words.insert(FromQt(joined.replace("\\\"", "\"")));
    }
  }
  return words;
}

TEST(OwnWords, HaveSpanishForEachThatTheWindowUses) {
  const auto words = WordsInSources(QString(__FILE__).section("/tests/", 0, 0) + "/src/desktop");
  EXPECT_GT(words.size(), 100u);
  ExpectSpanish(words, {"General", "Firmware:", "&No", "Digital", "Error", "no", "s", "macro %1"});
  UseLanguage("es");
  EXPECT_EQ(Words::tr("%n field(s) differ.", nullptr, 3), "3 campos son distintos.");
  UseLanguage("en");
  EXPECT_EQ(Words::tr("Read"), "Read");
  EXPECT_EQ(Words::tr("%n field(s) differ.", nullptr, 1), "1 field differs.");
}

}  // namespace
}  // namespace ostrel
