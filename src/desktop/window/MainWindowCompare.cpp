#include "base/Scope.h"
#include "blocks/Configuration.h"
#include "desktop/dialogs/CompareWindow.h"
#include "desktop/forms/Words.h"
#include "desktop/session/FaultText.h"
#include "desktop/window/MainWindow.h"
#include "platform/Dialogs.h"
#include "shell/Configurator.h"
#include "shell/compare/TakeOver.h"
#include "shell/writing/GuardedWrite.h"
#include "shell/writing/WriteDoubts.h"

// Comparing what stands on the pages with what stands elsewhere.

namespace ostrel {
namespace {

constexpr std::size_t kCopiesToCompare = 15;

}  // namespace

void MainWindow::Compare() {
  if (comparing_) return comparing_->raise();
  comparing_ = new CompareWindow(ComparedSources(), this);
  if (!shownFile_.empty()) comparing_->ShowFile(shownFile_);
  comparing_->show();
}

CompareSources MainWindow::ComparedSources() {
  CompareSources sources{
      .pages =
          [this] {
            return ModelConfiguration{configurator_.profile, unsaved_.WithFront()};
          },
      .readLogger = [this] { return AskForReadingBeside(); },
      .features = [this] { return configurator_.info.Features; },
      .chooseFile =
          [this] {
            return parts_.platform.dialogs.ChooseFile(
                {.filter = FromQt(Words::tr("Configuration files") + "|*.ocf|" +
                                  Words::tr("All files") + "|*.*")});
          },
      .readFile = [this](const std::string& path) { return ReadFile(path); },
      .lacks =
          [this](const ModelConfiguration& file, const std::string& path) {
            const auto lack = WhatLacks(file, path, parts_.platform.files, Translate());
            return lack ? SentenceOf(*lack) : QString();
          },
      .files = recent_.Paths(),
      .copies = {},
      .translate = Translate(),
      .goTo = [this](PageId page,
                     const FieldId& field) { parts_.guard([&] { GoToField(page, field); }); },
      .takeOver =
          [this](const DeviceConf& from, const std::vector<FieldId>& fields) {
            parts_.guard([&] { TakeOver(from, fields); });
          }};
  const std::vector<SafetyCopies::Copy> copies = copies_.List();
  for (auto copy = copies.rbegin();
       copy != copies.rend() && sources.copies.size() < kCopiesToCompare; ++copy)
    sources.copies.push_back(copies_.PathOf(copy->name));
  return sources;
}

void MainWindow::TakeOver(const DeviceConf& from, const std::vector<FieldId>& fields) {
  DeviceConf present = unsaved_.WithFront();
  CopyFields(from, present, configurator_.profile, fields);
  ShowOnPages(present);
}

void MainWindow::ShowOnPages(const DeviceConf& present) {
  configurator_.ShowConfiguration(present);
  unsaved_.Touch();
  Look();
}

bool MainWindow::AskForReadingBeside() {
  readsBeside_ = true;
  configurator_.session.AskFor(SessionPhase::Reading);
  readsBeside_ = configurator_.session.OwnsModel();
  return readsBeside_;
}

void MainWindow::ReadBesidePages() {
  navigation_.CommitFront();
  std::optional<DeviceConf> held;
  {
    const Lent beside(isBeside_, true);
    held = ReadBeside(configurator_, [this] { return configurator_.session.Download(); });
  }
  configurator_.session.ForgetSuccess();
  if (!comparing_) return;
  if (held)
    comparing_->TakeReading(ModelConfiguration{configurator_.profile, std::move(*held)});
  else
    comparing_->TakeReading({});
}

}  // namespace ostrel
