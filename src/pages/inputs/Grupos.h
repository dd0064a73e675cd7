#pragma once

#include <array>
#include <memory>
#include <vector>

#include "pages/Page.h"
#include "pages/PageContext.h"

namespace ostrel {

/// The page of the four power groups of analog inputs, all at once.
class Grupos final : public Page {
 public:
  explicit Grupos(PageContext& context);

  Form& GetForm() override { return form_; }
  void LoadText() override;
  void ChangeIndex(std::int16_t index) override;
  void Clear() override;
  void LoadData() override;
  void SaveConf(IniClass& document) override;
  void RestoreConf() override;
  void SavePage() override;
  void Form_Load() override;
  void Form_Activate() override {}
  void Form_Deactivate() override;
  void VisitFields(DeviceConf& conf, const FieldVisitor& visit) const override;
  std::vector<WireSection> WireSections() override;
  std::vector<WireBlock> WireBlocks() override;

 private:
  static constexpr int kGroups = 4;

  /// The controls of one group, numbered as an array of controls is.
  struct GroupControls {
    GroupControls(Form& form, int group);

    Frame frame;
    ComboBox ComboSalida;
    ComboBox ComboTension;
    TextBox Period;
  };

  void CheckNumbers();

  PageContext& context_;
  Form form_{"Grupos", "Configuracion de grupos de canales analogicos"};
  std::array<GroupControls, kGroups> groups_;
  Button help_;
  Timer Timer1_;
};

}  // namespace ostrel
