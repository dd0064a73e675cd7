#include <QLabel>
#include <QVBoxLayout>

#include "desktop/forms/Words.h"
#include "desktop/layouts/AlarmPanelLayout.h"
#include "desktop/layouts/LayoutParts.h"
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/ScaleLayout.h"

namespace ostrel {

void LayOutAux(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  const Card input = MakeCard(view, Words::tr("Input"));
  AddField(input, view.LabelFor("Nombre", Words::tr("Name:")), view.Show("Nombre"));
  AddField(input, view.LabelFor("Unidad", Words::tr("Unit:")), Narrow(view.Show("Unidad"), 12));
  AddField(input, new QLabel(Words::tr("State:"), &view),
           OptionBox(view, {"Int_Habil", "Int_NoHabil"}, 2));
  input.grid->setColumnStretch(1, 1);
  input.grid->setRowStretch(input.grid->rowCount(), 1);
  auto* top = new QHBoxLayout;
  top->addWidget(input.box, 1);
  top->addWidget(ScaleCard(view).box, 1);
  page->addLayout(top);
  page->addWidget(LayOutAlarmPanel(view, LevelThresholdWords()));
  page->addStretch(1);
}

void LayOutKatodex(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  const Card off = MakeCard(view, std::string_view("FrameOff"));
  off.grid->addWidget(view.LabelFor("ComboT_OFF", std::string_view("LabelOff")), 0, 0);
  off.grid->addWidget(Narrow(view.Show("ComboT_OFF"), 8), 0, 1);
  off.grid->addWidget(view.Show("Label4"), 0, 2);
  off.grid->addWidget(view.LabelFor("ComboSamples", std::string_view("LabelFreq")), 1, 0);
  off.grid->addWidget(Narrow(view.Show("ComboSamples"), 8), 1, 1);
  off.grid->setColumnStretch(3, 1);
  const Card ratio = MakeCard(view, std::string_view("FrameRatio"));
  ratio.grid->addWidget(view.LabelFor("TextRatio", std::string_view("Label3")), 0, 0);
  ratio.grid->addWidget(Narrow(view.Show("TextRatio"), 12), 0, 1);
  ratio.grid->setColumnStretch(2, 1);
  for (const Card& card : {off, ratio}) {
    card.box->setMaximumWidth(480);
    page->addWidget(card.box);
  }
  page->addStretch(1);
}

}  // namespace ostrel
