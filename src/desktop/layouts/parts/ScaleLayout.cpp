#include "desktop/layouts/parts/ScaleLayout.h"

#include <QLabel>
#include <array>

#include "base/Numbers.h"
#include "controls/NumberBox.h"
#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

/// The unit of the signal that an option of the interface stands for.
struct SignalUnit {
  std::string_view option;
  const char* unit;
};

constexpr std::array<SignalUnit, 4> kSignalUnits{{
    {"Int_4_20", " mA"},
    {"Int_0_5", " V"},
    {"Int_0_10", " V"},
    {"Int_Press", " bar"},
}};

QString NumberIn(const Form& form, const std::string& box) {
  const double number = NumberIn(form.Get<TextBox>(box));
  const auto kept = ToFloat(number);
  return ToQt(kept ? DecText(*kept) : DecText(number));
}

QString UnitOfSignal(const Form& form, const ControlNames& names) {
  for (const SignalUnit& signal : kSignalUnits) {
    const std::string option = names(signal.option);
    if (form.Contains(option) && form.Get<OptionButton>(option).Selected()) return signal.unit;
  }
  return {};
}

/// "4 mA is 0 m, 20 mA is 6.5 m".
QString ScaleInWords(const Form& form, const ControlNames& names) {
  const QString start = NumberIn(form, names("IE")), end = NumberIn(form, names("FE"));
  if (start == end)
    return form.Get<TextBox>(names("IE")).face.Enabled()
               ? Words::tr("Both signals are the same: there is no scale.")
               : QString();
  const QString signal = UnitOfSignal(form, names);
  QString unit = ToQt(form.Get<TextBox>(names("Unidad")).Text());
  if (!unit.isEmpty()) unit.prepend(u' ');
  return Words::tr("%1 is %2, %3 is %4")
      .arg(start + signal, NumberIn(form, names("EqIE")) + unit, end + signal,
           NumberIn(form, names("EqFE")) + unit);
}

/// A label that says what the scale means, as long as the controls are shown.
QLabel* WordsOfScale(FormView& view, const ControlNames& names) {
  auto* label = new QLabel(&view);
  label->setObjectName(ToQt(names("ScaleWords")));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  const auto say = [label, &form = view.GetForm(), names] {
    label->setText(ScaleInWords(form, names));
  };
  for (const auto* box : {"IE", "FE", "EqIE", "EqFE", "Unidad"}) view.Whenever({names(box)}, say);
  for (const SignalUnit& signal : kSignalUnits)
    if (const std::string option = names(signal.option); view.Has(option))
      view.Whenever({option}, say);
  return label;
}

}  // namespace

Card ScaleCard(FormView& view, const ControlNames& names) {
  const Card card = MakeCard(view, Words::tr("Scale"));
  const auto number = [&](const char* box) { return Narrow(view.Show(names(box)), 10); };
  const auto value = [&](const char* box, const QString& words) {
    return Narrow(view.ShowNamed(names(box), words), 10);
  };
  const auto label = [&](const char* box, const char* name) {
    return view.LabelFor(names(box), std::string_view(names(name)));
  };
  card.grid->addWidget(new QLabel(Words::tr("Signal"), &view), 0, 1);
  card.grid->addWidget(new QLabel(Words::tr("Value in units"), &view), 0, 2);
  card.grid->addWidget(label("IE", "Label1"), 1, 0);
  card.grid->addWidget(number("IE"), 1, 1);
  card.grid->addWidget(value("EqIE", Words::tr("Value at the start of scale")), 1, 2);
  card.grid->addWidget(label("FE", "Label2"), 2, 0);
  card.grid->addWidget(number("FE"), 2, 1);
  card.grid->addWidget(value("EqFE", Words::tr("Value at full scale")), 2, 2);
  card.grid->addWidget(WordsOfScale(view, names), 3, 0, 1, 4);
  card.grid->setColumnStretch(3, 1);
  card.grid->setRowStretch(4, 1);
  return card;
}

}  // namespace ostrel
