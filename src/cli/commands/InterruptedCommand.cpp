#include <algorithm>

#include "cli/commands/Commands.h"
#include "cli/commands/OnlineCommand.h"
#include "cli/commands/UploadRun.h"
#include "shell/ledger/History.h"
#include "shell/ledger/Interrupted.h"

namespace ostrel::cli {
namespace {

struct InterruptedOptions {
  std::int64_t id = 0;
  bool look = false, finish = false, putBack = false, forget = false;
  UploadOptions upload{};
};

std::string TextOf(const Interrupted& interrupted) {
  const InterruptedWords words = WordsOf(interrupted);
  return Filled(words.what) + ": " + Filled(words.holding) + ", since " + Filled(words.why);
}

void PrintWaysOut(std::ostream& out, const Interrupted& one) {
  const std::string way = "  ostrelctl --port PORT interrupted " + std::to_string(one.entry.id);
  if (one.CanLook()) out << way << " --look      reads the logger and tells what it holds\n";
  if (one.CanFinish()) out << way << " --finish    writes the new configuration\n";
  if (one.CanPutBack()) out << way << " --put-back  writes the former configuration back\n";
  out << way << " --forget    tells of it no more\n";
}

ExitCode List(CommandContext& context, const std::vector<Interrupted>& open) {
  constexpr std::string_view kHoldings[] = {"former", "new", "unknown"};
  if (open.empty()) context.console.Note("no work on a logger is left interrupted");
  return context.Show({[&] {
                         Json all = Json::array();
                         for (const Interrupted& one : open)
                           all.push_back(
                               {{"id", one.entry.id},
                                {"serial", one.entry.serial},
                                {"model", one.entry.model},
                                {"kind", WordOf(one.entry.kind)},
                                {"began", one.entry.began},
                                {"holding", kHoldings[static_cast<std::size_t>(one.holding)]},
                                {"words", TextOf(one)},
                                {"canFinish", one.CanFinish()},
                                {"canPutBack", one.CanPutBack()}});
                         return all;
                       },
                       [&](std::ostream& out) {
                         for (const Interrupted& one : open) {
                           out << Printable(TextOf(one)) << '\n';
                           PrintWaysOut(out, one);
                         }
                       }});
}

ExitCode Look(CommandContext& context, Ledger& books, const Interrupted& interrupted) {
  const LedgerEntry& entry = interrupted.entry;
  return RunOnline(context, HistoryName(entry.id), [&](Online& online) {
    if (const ExitCode other = OtherLogger(online, entry.serial); other != ExitCode::Done)
      return other;
    const ExitCode read = online.session.Download();
    if (read != ExitCode::Done) return read;
    const Holding found = WhatWasFound(online.configurator, entry, online.configurator.conf);
    const std::string words = Filled(FoundWords(found));
    context.Show({[&] {
                    return Json{{"found", words}};
                  },
                  [&](std::ostream& out) {
                    out << words << '\n';
                    if (found != Holding::New) PrintWaysOut(out, interrupted);
                  }});
    if (found == Holding::New) Settle(books, entry);
    return found == Holding::Unknown ? ExitCode::Differences : ExitCode::Done;
  });
}

/// Writes the configuration of an entry into the logger that is known to be the interrupted one.
ExitCode Write(CommandContext& context, UploadOptions options, const LedgerEntry& of,
               const std::string& serial) {
  options.file = HistoryName(of.id);
  options.serial = serial;
  return RunUpload(context, options);
}

ExitCode Finish(CommandContext& context, UploadOptions options, const LedgerEntry& entry) {
  options.finishes = entry.file;
  return Write(context, std::move(options), entry, entry.serial);
}

ExitCode PutBack(CommandContext& context, Ledger& books, const UploadOptions& options,
                 const LedgerEntry& entry) {
  if (const auto former = FormerEntry(books, entry))
    return Write(context, options, *former, entry.serial);
  return context.console.Fail(ExitCode::BadFile, "what the logger held before is not kept");
}

ExitCode RunInterrupted(CommandContext& context, const InterruptedOptions& options) {
  Ledger& books = *context.platform.ledger;
  const std::vector<Interrupted> open = FindInterrupted(books);
  if (!books.Fault().empty()) return LedgerFailed(context, books);
  if (options.id == 0) return List(context, open);
  const auto sought =
      std::ranges::find(open, options.id, [](const Interrupted& one) { return one.entry.id; });
  if (sought == open.end())
    return context.console.Fail(ExitCode::BadFile,
                                "entry " + std::to_string(options.id) + " is no open interruption");
  if (options.look) return Look(context, books, *sought);
  if (options.finish) return Finish(context, options.upload, sought->entry);
  if (options.putBack) return PutBack(context, books, options.upload, sought->entry);
  if (options.forget) Settle(books, sought->entry);
  return options.forget ? ExitCode::Done : List(context, {*sought});
}

}  // namespace

void TellInterrupted(CommandContext& context) {
  Ledger* const books = context.platform.ledger;
  if (!books) return;
  for (const Interrupted& one : FindInterrupted(*books))
    context.console.Say(TextOf(one) + " (\"ostrelctl interrupted " + std::to_string(one.entry.id) +
                        "\" tells the ways out)");
}

Command AddInterrupted(CLI::App& app) {
  CLI::App* parser = app.add_subcommand(
      "interrupted", "Tell what was interrupted on which logger, and find or mend what it left");
  const auto options = std::make_shared<InterruptedOptions>();
  parser->add_option("ID", options->id, "Number of the interrupted entry; all where absent")
      ->check(CLI::PositiveNumber);
  CLI::Option_group* ways = parser->add_option_group("way out");
  ways->add_flag("--look", options->look, "Read the logger and tell what it holds");
  ways->add_flag("--finish", options->finish, "Write the new configuration");
  ways->add_flag("--put-back", options->putBack, "Write the former configuration back");
  ways->add_flag("--forget", options->forget, "Tell of it no more");
  ways->require_option(0, 1);
  AddUploadFlags(*parser, options->upload);
  return {parser, [options](CommandContext& context) { return RunInterrupted(context, *options); }};
}

}  // namespace ostrel::cli
