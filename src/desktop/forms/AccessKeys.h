#pragma once

#include <QString>
#include <set>

class QToolBar;
class QWidget;

namespace ostrel {

/// A caption as a widget takes it: a "&" of the text stays one.
QString EscapedCaption(const QString& caption);

/// The caption behind a widget's text: access key marks removed.
QString WithoutAccessKey(const QString& text);

/// The caption with a mark ahead of a letter that `taken` does not hold, which joins it: the first
/// letter of a word where possible, and none in brackets. Without a mark when no letter is left.
QString WithAccessKey(const QString& caption, std::set<QChar>& taken);

/// Gives the buttons, boxes and field labels below a widget access keys, each letter once.
void AssignAccessKeys(QWidget& root);

/// Lets the Tab key reach the tools of a bar, which the window system leaves out. Called when all
/// of them stand.
void LetTabReachTools(QToolBar& bar);

}  // namespace ostrel
