#pragma once

#include <gtest/gtest.h>

#include "VirtualWorld.h"
#include "controls/Form.h"
#include "lang/Lang.h"
#include "pages/ActEdit.h"
#include "pages/Page.h"
#include "pages/PageContext.h"
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
  PageContext context{.platform = platform,
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
