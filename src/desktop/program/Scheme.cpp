#include "desktop/program/Scheme.h"

#include <QApplication>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "platform/qt/SystemScheme.h"

namespace ostrel {
namespace {

struct Colours {
  const char *window, *text, *base, *alternate, *button, *mid, *accent, *accentText, *dim;
};

constexpr Colours kLight{"#f4f5f7", "#1d2228", "#ffffff", "#f0f2f4", "#ffffff",
                         "#c6ccd3", "#0b7285", "#ffffff", "#8b949e"};
constexpr Colours kDark{"#1f2328", "#e6e9ec", "#15181c", "#1b1f24", "#2b3138",
                        "#454d56", "#22a5bd", "#0c1113", "#7d8690"};

constexpr const char* kDarkOutlineBase = "#7c8894";

QPalette PaletteOf(const Colours& colours) {
  QPalette palette(QColor(colours.button), QColor(colours.window));
  const auto set = [&](QPalette::ColorRole role, const char* colour) {
    palette.setColor(role, QColor(colour));
  };
  set(QPalette::Window, colours.window);
  set(QPalette::WindowText, colours.text);
  set(QPalette::Text, colours.text);
  set(QPalette::ButtonText, colours.text);
  set(QPalette::Base, colours.base);
  set(QPalette::AlternateBase, colours.alternate);
  set(QPalette::Button, colours.button);
  set(QPalette::Mid, colours.mid);
  set(QPalette::Highlight, colours.accent);
  set(QPalette::HighlightedText, colours.accentText);
  set(QPalette::Link, colours.accent);
  set(QPalette::ToolTipBase, colours.base);
  set(QPalette::ToolTipText, colours.text);
  set(QPalette::PlaceholderText, colours.dim);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(colours.dim));
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(colours.window));
  return palette;
}

/// The drawing of the style, which finds its outlines by darkening the window's colour: on a dark
/// window they would not be seen. Here they are darkened from a lighter one.
class OutlinedStyle final : public QProxyStyle {
 public:
  explicit OutlinedStyle(QColor outlineBase)
      : QProxyStyle(QStyleFactory::create("Fusion")), outlineBase_(outlineBase) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    const bool isOutlined = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton ||
                            element == PE_IndicatorItemViewItemCheck ||
                            element == PE_PanelLineEdit || element == PE_FrameLineEdit ||
                            element == PE_Frame;
    WithOutlines(isOutlined, option,
                 [&] { QProxyStyle::drawPrimitive(element, option, painter, widget); });
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    WithOutlines(element == CE_ProgressBarGroove, option,
                 [&] { QProxyStyle::drawControl(element, option, painter, widget); });
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    WithOutlines(control == CC_SpinBox || control == CC_ComboBox, option,
                 [&] { QProxyStyle::drawComplexControl(control, option, painter, widget); });
  }

 private:
  template <class Draw>
  void WithOutlines(bool isOutlined, const QStyleOption* option, const Draw& draw) const {
    if (!isOutlined || !outlineBase_.isValid()) return draw();
    QPalette& palette = const_cast<QStyleOption*>(option)->palette;
    const QPalette kept = palette;
    palette.setColor(QPalette::Window, outlineBase_);
    draw();
    palette = kept;
  }

  QColor outlineBase_;
};

constexpr const char* kSheet = R"(
QGroupBox { border: 1px solid palette(mid); border-radius: 6px; margin-top: 9px;
            background: palette(base); padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; }
QLabel#Heading { font-size: 15pt; font-weight: 600; }
QLabel#EmptyPage { color: palette(placeholder-text); font-size: 12pt; }
QLabel#Status { font-weight: 600; }
QLabel#Failure { color: #d9480f; }
*[testPart="step"] { font-size: 34pt; font-weight: 700; }
*[testPart="digits"] { font-size: 22pt; font-weight: 700; }
*[testPart="table"] { font-size: 15pt; }
*[testPart="button"] { font-size: 13pt; }
QLabel[verdict] { border: 1px solid palette(mid); border-radius: 8px; padding: 8px;
            background: palette(base); }
QLabel[verdict="passed"] { background: #2b8a3e; color: #ffffff; }
QLabel[verdict="failed"] { background: #c92a2a; color: #ffffff; }
QLineEdit, QComboBox, QTimeEdit { min-height: 22px; }
QPushButton { min-height: 22px; padding: 1px 12px; }
QPushButton[primary="true"]:enabled { background: palette(highlight);
            color: palette(highlighted-text); border: 2px solid palette(highlight);
            border-radius: 4px; padding: 0 12px; }
QPushButton[primary="true"]:enabled:hover,
QPushButton[primary="true"]:enabled:focus { border-color: palette(text); }
QCheckBox[noted="true"], QRadioButton[noted="true"] {
            color: #d97706; text-decoration: underline; }
QLabel#NoteBubble { background: palette(base); color: palette(text);
            border: 1px solid #d97706; border-radius: 4px; padding: 4px 8px; }
QTreeWidget#Tree { border: 1px solid palette(mid); border-radius: 4px; }
QTreeWidget::item { padding: 2px 0; }
QHeaderView::section { padding: 2px 6px; }
QListWidget::item { padding: 1px 0; }
QToolButton[popupMode="2"] { padding-right: 14px; }
QToolButton::menu-indicator { subcontrol-origin: padding; subcontrol-position: center right; }
QToolBar { border: none; padding: 3px; spacing: 2px; }
QStatusBar::item { border: none; }
)";

/// Whether the desktop asks for dark windows, or draws its own so.
bool SystemIsDark() {
  if (const auto wantsDark = DesktopWantsDark()) return *wantsDark;
  const QPalette palette = QApplication::palette();
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

}  // namespace

void ApplyScheme(Scheme scheme) {
  const bool isDark = scheme == Scheme::System ? SystemIsDark() : scheme == Scheme::Dark;
  QApplication::setStyle(new OutlinedStyle(isDark ? QColor(kDarkOutlineBase) : QColor()));
  QApplication::setPalette(PaletteOf(isDark ? kDark : kLight));
  qApp->setStyleSheet(kSheet);
}

}  // namespace ostrel
