#include <set>
#include <sstream>

#include "PageFixture.h"
#include "pages/ActEdit.h"
#include "pages/ActionCatalogue.h"

namespace ostrel {
namespace {

std::string Untranslated(std::string_view text) { return std::string(text); }

TEST(ActionCatalogue, EachModelOffersItsNumbers) {
  struct Case {
    const char* model;
    const char* missing;  // of the numbers that some model offers
  };
  const auto numbers = [](const std::string& ranges) {
    std::set<int> all;
    std::istringstream in(ranges);
    for (int first = 0, last = 0; in >> first >> last;)
      for (int n = first; n <= -last; ++n) all.insert(n);
    return all;
  };
  const Case table[] = {
      {"Tavro BP", "70-78 98-101 110-125"},
      {"Tavro BQ", "45-47 54-56 59-64 66-68 70-78 81-88 98-101 106-125"},
      {"Ostrel VR200", "50-52 81-88 98-101 110-125"},
      {"Ostrel KA1", "44-47 50-56 70-78 81-88 110-125"},
      {"Ostrel KA2", "44-47 50-56 70-78 81-88 110-125"},
      {"Ostrel S100", "46-47 50-52 55-56 59-64 66-68 81-88 98-101 104-109"},
  };
  for (const Case& c : table) {
    TargetProfile model;
    SelectTarget(model, c.model);
    std::set<int> expected = numbers("1-39 42-48 50-68 70-125");
    for (const int n : numbers(c.missing)) expected.erase(n);
    std::set<int> offered;
    int former = 0;
    for (const ActionItem& item : OfferedActions(model, Untranslated)) {
      EXPECT_GT(item.number, former) << "ascending, each once";
      former = item.number;
      offered.insert(item.number);
    }
    EXPECT_EQ(offered, expected) << c.model;
  }
}

TEST(ActionCatalogue, LinesReadAsNumberNameAndIndex) {
  for (const auto& [model, lines] : std::vector<std::pair<const char*, std::vector<const char*>>>{
           {"Tavro BP",
            {"39 - Ejecutar macro 38", "43 - Encender GSM durante 5m",
             "44 - Leer grupo de analogicas 0", "52 - Encender GSM durante 30m",
             "56 - Registrar grupo de analogicas 3", "66 - Registrar caudal 2 y 3",
             "88 - Leer canal auxiliar 3", "97 - Registrar canal matematico 3",
             "109 - Registrar entrada digital 7"}},
           {"Tavro BQ", {"44 - Leer presion", "53 - Registrar presion"}},
           {"Ostrel VR200", {"70 - Leer MODBUS todo", "71 - Leer MODBUS grupo 0"}},
           {"Ostrel KA1", {"98 - Registrar sonda 0"}},
           {"Ostrel S100", {"124 - Registrar grupo de expansiones 14"}}}) {
    TargetProfile profile;
    SelectTarget(profile, model);
    std::set<std::string> offered;
    for (const ActionItem& item : OfferedActions(profile, Untranslated)) offered.insert(item.text);
    for (const char* line : lines) EXPECT_TRUE(offered.contains(line)) << model << " " << line;
  }
}

class ActEditForm : public PageFixture {
 protected:
  ActEditForm() { SelectModel("Tavro BP"); }

  void Fill(std::initializer_list<std::int16_t> numbers) {
    int place = 0;
    for (const std::int16_t number : numbers) ActionBuffer[place++] = number;
  }
  std::vector<int> Buffer() const { return {ActionBuffer.begin(), ActionBuffer.end()}; }
  Form& form = actEdit.GetForm();
  ListBox& list = form.Get<ListBox>("DeviceList");
};

TEST_F(ActEditForm, AcceptingCompactsAndDropsWhatTheModelLacks) {
  Fill({5, 0, 98, 200, 7, 5, -3, 125});
  ActionBuffer[8] = 33;
  dialogs.OnModal([&](Modal&) {
    ASSERT_EQ(list.Rows().size(), 3U);
    EXPECT_EQ(list.RowText(1), "7 - Ejecutar macro 6");
    form.Get<Button>("OKButton").Click();
  });
  actEdit.ShowModal();
  EXPECT_EQ(Buffer(), (std::vector<int>{5, 7, 5, 0, 0, 0, 0, 0, 33}));
  EXPECT_FALSE(form.Visible());
}

TEST_F(ActEditForm, LeavingInAnyOtherWayKeepsTheList) {
  Fill({5, 0, 98});
  const auto before = Buffer();
  dialogs.OnModal([&](Modal&) {
    list.SetPosition(0);
    form.Get<Button>("DelButton").Click();
    form.Get<Button>("CancelButton").Click();
  });
  dialogs.OnModal([&](Modal&) { form.Get<Button>("DelButton").Click(); });
  actEdit.ShowModal();
  actEdit.ShowModal();
  EXPECT_EQ(dialogs.Unused(), 0u) << "both were shown";
  EXPECT_EQ(Buffer(), before);
}

TEST_F(ActEditForm, ANinthActionIsRefusedWithAMessage) {
  dialogs.OnModal([&](Modal&) {
    form.Get<Button>("AddButton").Click();
    form.Get<Button>("DelButton").Click();
    EXPECT_TRUE(list.Rows().empty() && dialogs.boxes.empty()) << "nothing is selected";
    form.Get<ListBox>("RefList").SetPosition(2);
    for (int i = 0; i < 9; ++i) form.Get<Button>("AddButton").Click();
    form.Get<Button>("OKButton").Click();
  });
  actEdit.ShowModal();
  ASSERT_EQ(dialogs.boxes.size(), 1U);
  EXPECT_EQ(dialogs.boxes[0].text, "No se pueden añadir mas de 8 acciones");
  EXPECT_EQ(dialogs.boxes[0].title, "Tavro BP");
  EXPECT_EQ(Buffer(), (std::vector<int>{3, 3, 3, 3, 3, 3, 3, 3, 0}));
}

}  // namespace
}  // namespace ostrel
