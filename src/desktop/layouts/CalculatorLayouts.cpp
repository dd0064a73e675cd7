#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"
#include "lang/Calculators.h"

namespace ostrel {
namespace {

constexpr int kMaskColumns = 4;

}  // namespace

void LayOutPulseCalculator(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  auto* grid = new QGridLayout;
  grid->addWidget(view.LabelFor("TextPulsos", std::string_view("LabelPulsos")), 0, 0);
  grid->addWidget(Narrow(view.Show("TextPulsos"), 10), 0, 1);
  grid->addWidget(view.ShowNamed("ComboPulso", Words::tr("Unit of the amount")), 0, 2);
  grid->addWidget(view.LabelFor("TextTimeBase", std::string_view("LabelTimeBase")), 1, 0);
  grid->addWidget(Narrow(view.Show("TextTimeBase"), 10), 1, 1);
  grid->addWidget(view.Show("LabelSegundos"), 1, 2);
  grid->addWidget(view.LabelFor("ComboEq", std::string_view("LabelEq")), 2, 0);
  grid->addWidget(view.Show("ComboEq"), 2, 1, 1, 2);
  grid->addWidget(view.LabelFor("TextEqUn", std::string_view("LabelEqUn")), 3, 0);
  auto* result = view.Show<QLineEdit>("TextEqUn");
  result->setReadOnly(true);
  grid->addWidget(Narrow(result, 16), 3, 1, 1, 2);
  grid->setColumnStretch(2, 1);
  dialog->addLayout(grid);
  dialog->addStretch(1);
  QHBoxLayout* buttons = EndButtons(view.Show("CalcButton"), view.Show("CancelButton"));
  buttons->insertWidget(buttons->count() - 1, view.Show("UseButton"));
  dialog->addLayout(buttons);
}

void LayOutMaskCalculator(FormView& view) {
  auto* dialog = new QVBoxLayout(&view);
  auto* bits = new QGridLayout;
  // Columns of four, the lowest bit first.
  for (int bit = 0; bit < kMaskBits; ++bit)
    bits->addWidget(
        view.ShowNamed("BitCheck(" + std::to_string(bit) + ")", Words::tr("Bit %1").arg(bit)),
        bit % kMaskColumns, bit / kMaskColumns);
  bits->setHorizontalSpacing(18);
  dialog->addLayout(bits);
  QLabel* label = view.LabelFor("Resultado", Words::tr("Mask:"));
  auto* result = view.Show<QLineEdit>("Resultado");
  result->setReadOnly(true);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(result, 1);
  row->addWidget(view.Show("CancelButton"));
  dialog->addLayout(row);
}

}  // namespace ostrel
