#include <QVBoxLayout>

#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/parts/LayoutParts.h"

namespace ostrel {
namespace {

void AddText(FormView& view, const Card& card, std::string_view label, std::string_view box) {
  AddField(card, view.LabelFor(box, label), view.Show(box));
}

/// A box for a number, with its unit behind it where it has one.
void AddNumber(FormView& view, const Card& card, std::string_view label, std::string_view box,
               std::string_view unit = {}) {
  QLabel* text = view.LabelFor(box, label);
  QWidget* field = Narrow(view.Show(box), 8);
  if (!unit.empty()) field = Joined(view, {field, view.Show(unit)}, Qt::Horizontal, true);
  AddField(card, text, field);
}

Card ApnCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("FrameAPN"));
  AddText(view, card, "LabelAPNServer", "TextAPNServer");
  AddText(view, card, "LabelAPNUserName", "TextAPNUserName");
  AddText(view, card, "LabelAPNPassword", "TextAPNPassword");
  AddNumber(view, card, "LabelAPNRetry", "TextAPNRetry");
  AddNumber(view, card, "LabelAPNRetryTime", "TextAPNRetryTime", "LabelAPNRetrySeconds");
  AddNumber(view, card, "LabelConTimeOut", "TextConTimeOut", "LabelConSeconds");
  return card;
}

Card ServerCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("FrameGPRS"));
  AddField(card, view.LabelFor("IPInputBox", std::string_view("LabelIP")),
           Narrow(view.Show("IPInputBox"), 15));
  AddNumber(view, card, "LabelPort", "TextPort");
  AddNumber(view, card, "LabelTimeout", "TextTimeout", "LabelTimeoutSeconds");
  return card;
}

Card FtpCard(FormView& view) {
  const Card card = MakeCard(view, std::string_view("FrameFTP"));
  AddField(card, view.LabelFor("IPInputBox1", std::string_view("LabelIP1")),
           Narrow(view.Show("IPInputBox1"), 15));
  AddText(view, card, "LabelRuta", "TextRuta");
  AddText(view, card, "LabelFTPUser", "TextFTPUser");
  AddText(view, card, "LabelFTPPass", "TextFTPPass");
  AddNumber(view, card, "LabelFTPRetry", "TextFTPRetry");
  AddNumber(view, card, "LabelFTPRetryTime", "TextFTPRetryTime", "LabelFTPSeconds");
  return card;
}

}  // namespace

void LayOutGprs(FormView& view) {
  QVBoxLayout* page = MakeSheet(view);
  page->addWidget(Joined(view, {view.Show("CheckHabilGPRS"), view.Show("CheckMantener")},
                         Qt::Horizontal, true));
  auto* cards = new QGridLayout;
  cards->addWidget(ApnCard(view).box, 0, 0);
  cards->addWidget(ServerCard(view).box, 1, 0);
  cards->addWidget(FtpCard(view).box, 0, 1);
  for (int column = 0; column < 2; ++column) cards->setColumnStretch(column, 1);
  page->addLayout(cards);
  page->addWidget(view.Show("CheckMostrar"));
  page->addStretch(1);
}

}  // namespace ostrel
