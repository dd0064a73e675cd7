#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "cli/CommandContext.h"

namespace ostrel::cli {

/// What is written into a logger, and how.
struct UploadOptions {
  std::string file{};
  std::string copy{};      ///< name of the safety copy that the file is; empty for any other file
  std::string serial{};    ///< of the only logger that it may go to; empty for any
  std::string finishes{};  ///< the file in whose name it is written; empty for its own
  bool noVerify = false;
  bool noBackup = false;
  bool dryRun = false;
  bool force = false;
};

/// Adds the options but for the file.
void AddUploadFlags(CLI::App& parser, UploadOptions& options);

/// Writes a file into the logger at the port of the options, with all guards.
ExitCode RunUpload(CommandContext& context, const UploadOptions& options);

}  // namespace ostrel::cli
