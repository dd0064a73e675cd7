#pragma once

#include <gtest/gtest.h>

#include "controls/Form.h"
#include "lang/Lang.h"
#include "pages/ActEdit.h"
#include "pages/Page.h"
#include "pages/PageContext.h"
#include "platform/virtual/VirtualWorld.h"
#include "store/IniTool.h"

namespace ostrel {

/// All that a page stands on, without a link and without a window.
class PageFixture : public testing::Test, protected VirtualWorld {
 protected:
  void SelectModel(std::string_view name) { SelectTarget(profile, name); }

  /// Makes a text the file that pages restore from.
  void PutFile(const std::string& text) {
    files.contents[ConfFilePath] = text;
    iniTool.Forget();
  }

  static void Start(Page& page) {
    page.Form_Load();
    page.Clear();
  }

  template <class Control>
  static Control& On(Page& page, std::string_view name) {
    return page.GetForm().Get<Control>(name);
  }

  static void Choose(Page& page, std::string_view option) {
    On<OptionButton>(page, option).SetSelected(true);
  }

  static std::string Caption(Page& page, std::string_view control) {
    return FaceOf(page.GetForm()[control]).Caption();
  }

  /// '1' for each control that is enabled.
  static std::string Enabled(Page& page, std::initializer_list<const char*> names) {
    std::string enabled;
    for (const char* name : names) enabled += FaceOf(page.GetForm()[name]).Enabled() ? '1' : '0';
    return enabled;
  }

  /// '1' for each control that is shown.
  static std::string Shown(Page& page, std::initializer_list<const char*> names) {
    std::string shown;
    for (const char* name : names) shown += FaceOf(page.GetForm()[name]).Visible() ? '1' : '0';
    return shown;
  }

  /// Lets the timers of the pages run once.
  void Tick() { loop.RunFor(std::chrono::seconds(1)); }

  Lang lang{files, "Lang.txt"};
  IniTool iniTool{files};
  DeviceConf conf;
  TargetProfile profile;
  DeviceInfo info;
  RealTimeData live;
  TotalCounts totals;
  ActionList ActionBuffer;
  bool Connected = false;
  bool ComBusy = false;
  std::string ConfFilePath = "conf.ocf";
  PageContext context{
      .platform = platform,
      .lang = lang,
      .iniTool = iniTool,
      .conf = conf,
      .profile = profile,
      .info = info,
      .live = live,
      .totals = totals,
      .ActionBuffer = ActionBuffer,
      .Connected = Connected,
      .ComBusy = ComBusy,
      .ConfFilePath = ConfFilePath,
      .timersRun = true,
      .programFolder = "/opt/ostrel",
      .showActEdit = [this](std::string_view subject) { actEdit.ShowModal(subject); }};
  ActEdit actEdit{context};
};

}  // namespace ostrel
