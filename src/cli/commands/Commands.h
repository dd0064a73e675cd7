#pragma once

#include <CLI/CLI.hpp>
#include <functional>

#include "cli/CommandContext.h"
#include "host/ExitCode.h"

namespace ostrel::cli {

/// A command: its part of the command line, and what it does when it was chosen.
struct Command {
  CLI::App* parser;
  std::function<ExitCode(CommandContext&)> run;
};

// Each adds one command to a parser, which must outlive it.
Command AddPorts(CLI::App& app);
Command AddDoctor(CLI::App& app);
Command AddInfo(CLI::App& app);
Command AddClock(CLI::App& app);
Command AddLive(CLI::App& app);
Command AddOutput(CLI::App& app);
Command AddTotal(CLI::App& app);
Command AddVoice(CLI::App& app);
Command AddProbe(CLI::App& app);
Command AddTerminal(CLI::App& app);
Command AddFirmware(CLI::App& app);
Command AddDownload(CLI::App& app);
Command AddUpload(CLI::App& app);
Command AddBackups(CLI::App& app);
Command AddRestore(CLI::App& app);
Command AddStatements(CLI::App& app);
Command AddDiff(CLI::App& app);
Command AddShow(CLI::App& app);
Command AddCheck(CLI::App& app);
Command AddSchedule(CLI::App& app);
Command AddReport(CLI::App& app);
Command AddCalc(CLI::App& app);
Command AddTest(CLI::App& app);

}  // namespace ostrel::cli
