#include "desktop/program/CommandLine.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "desktop/forms/Words.h"
#include "lang/Lang.h"
#include "model/TargetProfile.h"

namespace ostrel {
namespace {

constexpr int kUsage = 2;

[[noreturn]] void Refuse(const std::string& words) {
  std::fprintf(stderr, "ostrel-configurator: %s\n", words.c_str());
  std::exit(kUsage);
}

Scheme ReadScheme(const QString& word) {
  if (word == "light") return Scheme::Light;
  if (word == "dark") return Scheme::Dark;
  if (word != "system") Refuse("--scheme is light, dark or system");
  return Scheme::System;
}

int ReadLanguage(const QString& text) {
  bool isNumber = false;
  const int column = text.toInt(&isNumber);
  if (!isNumber || column < 0 || column >= kLangColumns)
    Refuse("--language is a number from 0 to " + std::to_string(kLangColumns - 1));
  return column;
}

QSize ReadSize(const QString& text) {
  const QSize size(text.section(u'x', 0, 0).toInt(), text.section(u'x', 1).toInt());
  constexpr int kMost = 8192;
  if (size.isEmpty() || size.width() > kMost || size.height() > kMost)
    Refuse("--size is WIDTHxHEIGHT, each at most " + std::to_string(kMost));
  return size;
}

std::string ReadTarget(const QString& name) {
  if (name.isEmpty()) return {};
  const TargetModel* model = FindTarget(FromQt(name));
  if (!model) Refuse("there is no model " + FromQt(name));
  return std::string(model->name);
}

}  // namespace

bool NeedsNoDisplay(int argc, char** argv) {
  constexpr std::array<std::string_view, 5> kWords{"-h", "--help", "--help-all", "-v", "--version"};
  return std::any_of(argv, argv + argc, [&](std::string_view argument) {
    return argument.starts_with("--screenshot") ||
           std::find(kWords.begin(), kWords.end(), argument) != kWords.end();
  });
}

CommandLine ReadCommandLine(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Configures telemetry loggers of the Ostrel and Tavro families.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("FILE", "Configuration file to open.", "[FILE]");
  parser.addOptions({
      {"demo", "Put six simulated loggers into the port list, COM251 to COM256."},
      {"factory", "Add the node TEST of the factory tests to the tree."},
      {"factory-folder", "Folder of the records of factory tests, which stations may share.",
       "FOLDER"},
      {"scheme", "Colours: light, dark or system.", "SCHEME", "system"},
      {"screenshot", "Draw one page into a PNG file, without a display, and end.", "OUT"},
      {"target", "Model for the picture.", "NAME"},
      {"page", "Key of the tree's node to go to.", "KEY"},
      {"language", "Column of the translation table for the picture.", "NUMBER", "1"},
      {"size", "Size of the picture.", "WIDTHxHEIGHT", "1280x720"},
  });
  parser.process(arguments);
  if (parser.positionalArguments().size() > 1) Refuse("one FILE at the most");
  for (const auto* option : {"target", "language", "size"})
    if (parser.isSet(option) && !parser.isSet("screenshot"))
      Refuse("--" + std::string(option) + " goes with --screenshot alone");
  if (parser.isSet("screenshot") && parser.value("screenshot").isEmpty())
    Refuse("--screenshot wants the name of a file");
  CommandLine line;
  if (!parser.positionalArguments().isEmpty())
    line.file = FromQt(QFileInfo(parser.positionalArguments().first()).absoluteFilePath());
  line.target = ReadTarget(parser.value("target"));
  line.page = FromQt(parser.value("page"));
  line.screenshot = FromQt(parser.value("screenshot"));
  line.language = ReadLanguage(parser.value("language"));
  line.size = ReadSize(parser.value("size"));
  line.scheme = ReadScheme(parser.value("scheme"));
  if (const QString folder = parser.value("factory-folder"); !folder.isEmpty())
    line.factoryFolder = FromQt(QFileInfo(folder).absoluteFilePath());
  line.factory = parser.isSet("factory");
  line.demo = parser.isSet("demo");
  return line;
}

}  // namespace ostrel
