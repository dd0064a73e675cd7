#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <string>

#include "desktop/program/Scheme.h"

namespace ostrel {

/// What the program was started with.
struct CommandLine {
  std::string file;        ///< configuration to open, absolute; empty for none
  std::string target;      ///< display name of the model for a picture; empty for the first
  std::string page;        ///< key of the node to go to; empty for the choice of model
  std::string screenshot;  ///< picture to draw; empty to run as a window
  int language = 0;        ///< column of the translation table for a picture
  QSize size{1280, 720};   ///< of a picture
  Scheme scheme = Scheme::System;
  std::string factoryFolder;  ///< of the records of factory tests; empty for the user's own
  bool factory = false;       ///< the tree has a node for the factory test
  bool demo = false;          ///< simulated loggers stand in the port list
};

/// Whether the arguments ask for something that needs no display: a picture, the help, the version.
/// Looked at ahead of everything else: the window system is chosen before they can be read.
bool NeedsNoDisplay(int argc, char** argv);

/// Reads the arguments. Ends the program for `--help`, `--version` and wrong ones, as is usual.
CommandLine ReadCommandLine(const QStringList& arguments);

}  // namespace ostrel
