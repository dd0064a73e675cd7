#pragma once

#include <array>

#include "pages/PlainPage.h"
#include "pages/parts/BoundFields.h"

namespace ostrel {

/// The four power groups of analog inputs, all at once.
class AnalogGroupControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::Grupos,
                                       .form = "Grupos",
                                       .title = "Configuracion de grupos de canales analogicos",
                                       .help = "Group"};

  AnalogGroupControls(Form& form, PageContext& context);

  void LoadData();
  void Save(DeviceConf& conf) const;
  void CheckNumbers();

 private:
  static constexpr int kGroups = 4;

  /// The controls of one group, numbered as an array of controls is.
  struct GroupControls {
    GroupControls(Form& form, int group);

    void Load(const ConfGrupo& record);
    void Save(ConfGrupo& record) const;

    Frame frame;
    ComboBox ComboSalida;
    ComboBox ComboTension;
    TextBox Period;
    BoundFields<ConfGrupo> fields;
  };

  PageContext& context_;
  std::array<GroupControls, kGroups> groups_;
};

using Grupos = PlainPage<AnalogGroupControls>;

}  // namespace ostrel
