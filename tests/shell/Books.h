#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "SimWorld.h"
#include "shell/ledger/IdentityGuard.h"
#include "shell/writing/GuardedWrite.h"

namespace ostrel {

/// A session with a logger of few statements, of which book is kept.
class Books : public testing::Test {
 protected:
  Books() : world(sim::MakeDefaultOptions(sim::Model::BP)) { Restart(); }

  /// Ends the program, and starts it anew in another process.
  void Restart() {
    program.reset();
    world.ledger.cut = false;
    world.ledger.process += "+";
    program = std::make_unique<Configurator>(world.platform, world.Options(false));
    program->StartForCommand("Tavro BP", 1);
  }
  void Connect() {
    ASSERT_TRUE(program->session.Open(SimWorld::kPort, ""));
    ASSERT_TRUE(program->session.CompleteInfo());
  }
  WriteResult Write() {
    return WriteGuarded(*program, {.read = [this] { return program->session.Download(); },
                                   .write = [this] { return program->session.Upload(); },
                                   .keep =
                                       [this](const DeviceConf&) {
                                         program->ledger.NoteCopy("/copy.ocf");
                                         return true;
                                       },
                                   .inSpiteOf =
                                       [this](const Phrase& doubt) {
                                         held = Filled(doubt);
                                         return goesOn;
                                       }});
  }
  void Open(const std::string& path) { ASSERT_EQ(program->OpenFile(path), RestoreResult::Loaded); }
  void Name(const std::string& name) {
    program->conf.General.DNAME = name;
    program->ShowConfiguration(program->conf);
  }
  std::vector<std::string> Doubts() const {
    std::vector<std::string> texts;
    for (const Phrase& doubt : DoubtsOfIdentity(*program)) texts.push_back(Filled(doubt));
    return texts;
  }
  /// The kinds of all entries, and how they ended.
  std::vector<std::string> Kinds() const {
    std::vector<std::string> kinds;
    for (const LedgerEntry& entry : world.ledger.entries)
      kinds.push_back(std::string(WordOf(entry.kind)) + " " + std::string(WordOf(entry.state)));
    return kinds;
  }

  SimWorld world;
  std::unique_ptr<Configurator> program;
  std::string held;  ///< what was told of the logger's present configuration
  bool goesOn = true;
};

}  // namespace ostrel
