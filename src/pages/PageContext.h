#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "model/ActionList.h"
#include "model/DeviceConf.h"
#include "model/DeviceInfo.h"
#include "model/ProbeIdentity.h"
#include "model/RealTimeData.h"
#include "model/TargetProfile.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"

namespace ostrel {

class Form;
class IniTool;
class Lang;
class TextBox;

/// What all pages share: the records and flags of one configurator, and its services.
struct PageContext {
  const Platform& platform;
  Lang& lang;
  IniTool& iniTool;
  DeviceConf& conf;
  const TargetProfile& profile;
  DeviceInfo& info;
  RealTimeData& live;
  TotalCounts& totals;
  ActionList& ActionBuffer;  ///< through which a page and the action editor exchange a list
  const bool& Connected;
  const bool& ComBusy;
  const std::string& ConfFilePath;
  bool timersRun = false;     ///< whether loaded pages tick each second
  std::string programFolder;  ///< where the help pages stand, without a separator
  /// Shows the action editor on `ActionBuffer`, modal. `subject` says whose list it is.
  std::function<void(std::string_view subject)> showActEdit{};
  /// Lets the tree show anew which expansion inputs are in use. Null without a tree.
  std::function<void()> repaintTree{};
  /// Runs what wants the line to the logger, behind a reading that nobody waits for. Null without
  /// such readings.
  std::function<void(std::function<void()> action)> whenFree{};
  // The tools that a page opens, each modal.
  /// Lets the operator set the total of a pulse counter.
  std::function<void(std::int16_t meter)> showTotal{};
  /// Lets the operator set the total of an expansion counter.
  std::function<void(std::int16_t input)> showExpansionTotal{};
  /// Shows the calculator of pulse weights; its result can go into the box.
  std::function<void(TextBox& ratio)> showPulseCalculator{};
  /// Shows the calculator of bit masks.
  std::function<void()> showMaskCalculator{};
  /// Reads the identity of the one probe on the bus; nothing when there is no answer.
  std::function<std::optional<ProbeIdentity>()> readProbeIdentity{};
  // The voice-call list and the logger; false when the dialogue failed.
  std::function<bool(ConfAutVoz& list)> readVoiceList{};
  std::function<bool(const ConfAutVoz& list)> writeVoiceList{};
  /// Asks whether a list may be written that somebody may not mean. Null asks nobody.
  std::function<bool(const ConfAutVoz& list)> mayWriteVoiceList{};
  /// The text that the operator has copied elsewhere. Null without a clipboard.
  std::function<std::string()> clipboardText{};

  /// The text in the language in use; the text itself when the table is full.
  std::string Translate(std::string_view text) const;
  /// Reads a key of the file at `ConfFilePath`; empty when it is absent.
  std::string ConfReadKey(std::string_view section, std::string_view key) const;
  /// Runs what wants the line to the logger, at once or behind a reading that nobody waits for.
  void WhenFree(std::function<void()> action) const;
  /// Lets the operator edit an action list of the model, unless a download is replacing it, and
  /// runs `edited` behind. `subject` says whose it is. The dialog stands within no reading, which
  /// it would hold up.
  void EditActions(ActionList& actions, std::string subject, std::function<void()> edited) const;
  /// Opens the help page of a word.
  void ShowHelp(std::string_view word) const;
  /// Shows a form until its logic closes it or the operator dismisses it.
  void ShowModal(Form& form) const;
  /// Asks a question of the table with Yes and No, titled with the model's name.
  bool Ask(std::string_view question) const;
  /// Shows a box with an OK button, titled with the model's name.
  void ShowMessage(std::string_view text, BoxIcon icon) const;
};

}  // namespace ostrel
