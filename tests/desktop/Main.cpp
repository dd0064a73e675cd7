#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/program/Scheme.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  ostrel::ApplyScheme(ostrel::Scheme::Light);
  return RUN_ALL_TESTS();
}
