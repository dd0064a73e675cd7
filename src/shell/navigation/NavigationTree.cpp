#include "shell/navigation/NavigationTree.h"

#include <utility>

#include "shell/words/TimerGroups.h"

namespace ostrel {
namespace {

constexpr std::string_view kRoot = "Tavro";
constexpr int kMathNodes = 4;
constexpr int kFlagNodes = 16;
constexpr int kMainsInput = 8;

/// Adds nodes one below the other.
class TreeBuilder {
 public:
  explicit TreeBuilder(const std::function<std::string(std::string_view)>& translate)
      : translate_(translate) {}

  /// A node whose text is the same in every language.
  void AddFixed(std::string_view text, std::string_view key, std::string_view parent) {
    nodes_.push_back({std::string(key), std::string(text), std::string(parent)});
  }
  void Add(std::string_view text, std::string_view key, std::string_view parent = kRoot) {
    AddFixed(translate_(text), key, parent);
  }
  /// Numbered children from 0; a key is the stem and the number.
  void AddNumbered(int count, std::string_view stem, std::string_view parent) {
    for (int number = 0; number < count; ++number) {
      const std::string digits = std::to_string(number);
      AddFixed(digits, std::string(stem) + digits, parent);
    }
  }
  /// A group with numbered children, which is left out when there are none.
  void AddGroup(std::string_view text, std::string_view key, int count) {
    if (count <= 0) return;
    Add(text, key);
    AddNumbered(count, std::string(key) + "_", key);
  }
  void AddTimers(std::string_view text, std::string_view key) {
    Add(text, key, "Timer");
    for (const TimerGroup& group : kTimerGroups)
      AddFixed(group.text, std::string(key).append(group.keyEnd), key);
  }
  TreeNode& Last() { return nodes_.back(); }
  std::vector<TreeNode> Take() { return std::move(nodes_); }

 private:
  const std::function<std::string(std::string_view)>& translate_;
  std::vector<TreeNode> nodes_;
};

void AddDigitalInputs(TreeBuilder& tree, const TargetProfile& model,
                      const std::function<std::string(std::string_view)>& translate) {
  tree.Add("E.Digitales", "E_Digital");
  tree.AddNumbered(model.DigitalCount, "E_Digital_", "E_Digital");
  if (model.IsKA2 && model.DigitalCount == kMainsInput + 1)
    tree.Last().text = translate("8 (Fallo red)");
}

}  // namespace

std::vector<TreeNode> BuildNavigationTree(
    const TargetProfile& model, const std::function<std::string(std::string_view)>& translate) {
  TreeBuilder tree(translate);
  tree.Add("Dispositivo", kRoot, "");
  tree.Last().expanded = true;
  tree.Add("General", "General");
  tree.Add("Temporizadores", "Timer");
  tree.AddTimers("Ciclicos", "CTimer");
  tree.AddTimers("Semanales", "WTimer");
  tree.AddTimers("Mensuales", "MTimer");
  tree.AddTimers("Largos", "LTimer");
  if (model.IsBP) tree.AddFixed("Grupos", "Grupos", kRoot);
  tree.AddGroup("E.Analogicas", "E_Analog", model.AnalogCount);
  tree.AddGroup("Sondas", "E_OneWire", model.OneWireCount);
  AddDigitalInputs(tree, model, translate);
  tree.Add("Caudalimetros", "Caudal");
  tree.AddNumbered(model.CaudalCount, "Caudal_", "Caudal");
  tree.AddGroup("Expansiones", "Modulo", model.ModuloCount);
  tree.AddGroup("C.Matematicos", "E_Math", kMathNodes);
  tree.Add("Flags", "Flags");
  tree.AddNumbered(kFlagNodes, "Flag_", "Flags");
  tree.AddGroup("MODBUS", "MODBUS", model.ModbusCount);
  tree.Add("Autorizados Voz", "Aut_Voz");
  tree.AddFixed("GPRS", "GPRS", kRoot);
  tree.Add("Macros", "Macros");
  tree.Add("T.Real", "T_Real");
  tree.AddFixed("Firmware", "Firmware", kRoot);
  tree.AddFixed("Terminal", "Terminal", kRoot);
  return tree.Take();
}

std::optional<TreeNode> FactoryNode(const TargetProfile& model) {
  if (!model.IsBP && !model.IsBQ && !model.IsKA2) return {};
  return TreeNode{"TEST", "TEST", std::string(kRoot)};
}

}  // namespace ostrel
