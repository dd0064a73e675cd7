#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "desktop/forms/Words.h"

namespace ostrel {
namespace {

constexpr int kWait = 60'000;  // ms

/// Runs a program to its end, which is to have an exit code; gives what it wrote.
QString RunProgram(const QString& program, const QStringList& arguments, int code = 0) {
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(kWait)) << FromQt(program);
  const QString output = QString::fromUtf8(process.readAll());
  EXPECT_EQ(process.exitCode(), code)
      << FromQt(program + " " + arguments.join(u' ') + "\n" + output);
  return output;
}

TEST(Program, InstallsAndRunsFromAnEmptyFolder) {
  const QTemporaryDir folder;
  const QString build = QCoreApplication::applicationDirPath() + "/..";
  RunProgram("cmake", {"--install", build, "--prefix", folder.path()});
  for (const auto* file :
       {"bin/ostrel-configurator", "bin/ostrelctl", "bin/ostrel-sim",
        "share/ostrel-configurator/Lang.txt", "share/ostrel-configurator/help/Digital_ES.htm",
        "share/applications/ostrel-configurator.desktop",
        "share/icons/hicolor/scalable/apps/ostrel-configurator.svg",
        "share/mime/packages/ostrel-configurator.xml", "share/man/man1/ostrel-configurator.1",
        "share/man/man1/ostrelctl.1", "share/man/man1/ostrel-sim.1",
        "share/bash-completion/completions/ostrelctl"})
    EXPECT_TRUE(QFileInfo(folder.filePath(file)).isFile()) << file;
  const QString program = folder.filePath("bin/ostrel-configurator");
  EXPECT_TRUE(RunProgram(program, {"--version"}).contains("1.0"));
  EXPECT_TRUE(RunProgram(folder.filePath("bin/ostrelctl"), {"--port", "sim:KA1", "info"})
                  .contains("Ostrel KA1"));
  const QString picture = folder.filePath("page.png");
  RunProgram(program, {"--target", "VR200", "--page", "E_Analog_0", "--language", "2", "--size",
                       "1100x700", "--screenshot", picture});
  const QImage image(picture);
  EXPECT_EQ(image.size(), QSize(1100, 700));
  EXPECT_GT(image.convertToFormat(QImage::Format_Indexed8).colorCount(), 10) << "an empty picture";
}

TEST(Program, NamesWhatIsWrongWithItsArguments) {
  const QTemporaryDir folder;
  const QString picture = folder.filePath("page.png"), other = folder.filePath("other.txt");
  QFile text(other);
  ASSERT_TRUE(text.open(QIODevice::WriteOnly) && text.write("a text") > 0);
  text.close();
  const struct {
    QStringList arguments;
    int code;
    const char* says;
  } kCases[] = {
      {{"--language", "2"}, 2, "--language goes with --screenshot alone"},
      {{"--screenshot", picture, "--target", "Q"}, 2, "there is no model Q"},
      {{"--screenshot", picture, "--language", "en"}, 2, "--language is a number from 0 to"},
      {{"--screenshot", picture, "--size", "big"}, 2, "--size is WIDTHxHEIGHT"},
      {{"--screenshot", picture, "--size", "9x99999"}, 2, "--size is WIDTHxHEIGHT"},
      {{"--screenshot", ""}, 2, "--screenshot wants the name of a file"},
      {{"--screenshot", picture, "--scheme", "pink"}, 2, "--scheme is light, dark or system"},
      {{"--screenshot", picture, "--page", "Nothing"}, 1, "no page Nothing for the Ostrel KA1"},
      {{"--screenshot", picture, folder.filePath("none.ocf")}, 1, "cannot read "},
      {{"--screenshot", picture, other}, 1, "no configuration"},
      {{"--screenshot", folder.filePath("none/page.png")}, 1, "cannot write "},
      {{"a.ocf", "b.ocf"}, 2, "one FILE at the most"},
  };
  for (const auto& [arguments, code, says] : kCases) {
    const QString output = RunProgram(
        QCoreApplication::applicationDirPath() + "/ostrel-configurator", arguments, code);
    EXPECT_TRUE(output.contains(says)) << FromQt(output);
    EXPECT_FALSE(QFileInfo::exists(picture)) << says;
  }
}

}  // namespace
}  // namespace ostrel
