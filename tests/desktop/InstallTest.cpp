#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "desktop/Words.h"

namespace ostrel {
namespace {

constexpr int kWait = 60'000;  // ms

/// Runs a program to its end; gives what it wrote.
QString RunProgram(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(kWait)) << FromQt(program);
  const QString output = QString::fromUtf8(process.readAll());
  EXPECT_EQ(process.exitCode(), 0) << FromQt(program + " " + arguments.join(u' ') + "\n" + output);
  return output;
}

TEST(Install, GivesAProgramThatRunsFromAnEmptyFolder) {
  const QTemporaryDir folder;
  const QString build = QCoreApplication::applicationDirPath() + "/..";
  RunProgram("cmake", {"--install", build, "--prefix", folder.path()});
  for (const auto* file :
       {"bin/ostrel-configurator", "bin/ostrelctl", "bin/ostrel-sim",
        "share/ostrel-configurator/Lang.txt", "share/applications/ostrel-configurator.desktop",
        "share/icons/hicolor/scalable/apps/ostrel-configurator.svg",
        "share/mime/packages/ostrel-configurator.xml", "share/man/man1/ostrel-configurator.1",
        "share/man/man1/ostrelctl.1", "share/man/man1/ostrel-sim.1",
        "share/bash-completion/completions/ostrelctl"})
    EXPECT_TRUE(QFileInfo(folder.filePath(file)).isFile()) << file;
  const QString program = folder.filePath("bin/ostrel-configurator");
  EXPECT_TRUE(RunProgram(program, {"--version"}).contains("1.0"));
  const QString picture = folder.filePath("page.png");
  RunProgram(program, {"--target", "VR200", "--page", "E_Analog_0", "--language", "2", "--size",
                       "1100x700", "--screenshot", picture});
  const QImage image(picture);
  EXPECT_EQ(image.size(), QSize(1100, 700));
  EXPECT_GT(image.convertToFormat(QImage::Format_Indexed8).colorCount(), 10) << "an empty picture";
}

}  // namespace
}  // namespace ostrel
