#include <gmock/gmock.h>

#include <sstream>

#include "shell/SimWorld.h"
#include "shell/navigation/Navigation.h"
#include "shell/session/FaultWords.h"
#include "tools/FirmwareChoice.h"
#include "tools/HexFiles.h"
#include "tools/IntelHex.h"

namespace ostrel {
namespace {

using std::chrono::seconds;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FirmBench {
  explicit FirmBench(const std::string& fault = {}) : world(Options(fault)) {
    program.StartForCommand(world.TargetName(), 1);
    world.files.contents = {
        {"/image.hex", HexFile(600)}, {"/CopyFlash.hex", HexFile(20)}, {"/Lang.txt", ""}};
    form.Get<TextBox>("FirmPath").SetText("/image.hex");
    form.Get<TextBox>("LoaderPath").SetText("/CopyFlash.hex");
    world.logger->OnExchange([this](const sim::Exchange& exchange) {
      answered += exchange.frames;
      ++requests;
      if (exchange.request.starts_with("#F")) asked += exchange.request + " ";
    });
  }
  static sim::LoggerOptions Options(const std::string& fault) {
    sim::LoggerOptions options = sim::MakeDefaultOptions(sim::Model::BP);
    std::string error;
    std::istringstream faults(fault);
    for (std::string each; faults >> each;)
      options.faults.push_back(sim::ParseFault(each, error).value());
    return options;
  }
  void Connect() { ASSERT_TRUE(program.session.Open(SimWorld::kPort, "")); }
  void Start() { form.Get<Button>("StarBut").Click(); }
  std::string Info() { return FaceOf(form["LabelInfo"]).Caption(); }
  std::string LastBox() {
    return world.dialogs.boxes.empty() ? "" : world.dialogs.boxes.back().text;
  }

  SimWorld world;
  Configurator program{world.platform, world.Options(false)};
  Form& form = program.firm.GetForm();
  std::string asked;         ///< of the logger
  std::size_t answered = 0;  ///< frames
  std::size_t requests = 0;
};

TEST(FirmPage, SendsBothFilesAndEndsTheSession) {
  FirmBench bench;
  EXPECT_EQ(bench.Info(), "Preparado");
  bench.Connect();
  Navigation navigation(bench.program);
  EXPECT_EQ(navigation.NodeClick("Firmware"), NodeResult::Shown);
  std::vector<std::string> stages;
  FaceOf(bench.form["LabelInfo"]).OnChanged = [&] {
    if (stages.empty() || stages.back() != bench.Info()) stages.push_back(bench.Info());
    EXPECT_FALSE(bench.form.Get<Button>("StarBut").face.Enabled());
    EXPECT_EQ(bench.form.MousePointer(), Pointer::Hourglass);
    EXPECT_EQ(bench.program.session.Watch().Steps(), 27'012 + 912);
    EXPECT_EQ(navigation.NodeClick("General"), NodeResult::Rests);
  };
  bench.Start();
  FaceOf(bench.form["LabelInfo"]).OnChanged = nullptr;
  EXPECT_THAT(stages,
              ElementsAre("Borrando flash...", "Cargando imagen...", "Cargando CopyFlash en RAM...",
                          "Escribiendo imagen en flash, espere a que el led parpadee de "
                          "nuevo..."));
  EXPECT_EQ(bench.LastBox(), "NO CORTE LA ALIMENTACION MIENTRAS DURE LA ACTUALIZACION");
  EXPECT_EQ(bench.world.dialogs.boxes.back().title, "Tavro BP");
  const std::string image = HexFile(600);
  const auto& bar = bench.form.Get<ProgressBar>("PBar");
  EXPECT_EQ(bar.Maximum(), static_cast<int>(image.size()));
  EXPECT_EQ(bar.Value(), static_cast<int>(image.size()) - 1);
  EXPECT_EQ(bench.world.logger->Firmware().Image() + "\r\n", image);
  EXPECT_TRUE(bench.form.Get<Button>("StarBut").face.Enabled());
  bench.program.session.Tick();
  EXPECT_FALSE(bench.program.Connected);
  EXPECT_EQ(bench.form.MousePointer(), Pointer::Default);
  EXPECT_FALSE(bench.program.session.Watch().Running());
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Kept);
  bench.world.loop.RunFor(seconds(60));
  bench.Connect();
  ASSERT_TRUE(bench.program.comms.ReadConf());
  EXPECT_EQ(bar.Value(), static_cast<int>(image.size()) - 1) << "another transfer moves it not";
}

TEST(FirmPage, BrowsesForEachFile) {
  FirmBench bench;
  for (const auto& [button, box] :
       {std::pair{"FirmBut", "FirmPath"}, {"LoaderBut", "LoaderPath"}}) {
    bench.world.dialogs.ChoosePath(box);
    bench.form.Get<Button>(button).Click();
    bench.form.Get<Button>(button).Click();  // cancelled
  }
  EXPECT_EQ(bench.form.Get<TextBox>("FirmPath").Text(), "FirmPath");
  EXPECT_EQ(bench.form.Get<TextBox>("LoaderPath").Text(), "LoaderPath");
  for (const FileQuestion& question : bench.world.dialogs.questions)
    EXPECT_EQ(question.filter, "Intel hex file (*.hex)|*.hex|Todos los ficheros (*.*)|*.*");
}

TEST(FirmPage, RefusesToStartWithoutSessionAndFiles) {
  struct Case {
    bool connected;
    const char* image;
    const char* loader;
    const char* box;
  };
  for (const Case& c :
       {Case{false, "", "/CopyFlash.hex", "Debe iniciar la comunicacion primero"},
        {true, "", "/CopyFlash.hex", "Debe seleccionar la ruta de los dos archivos"},
        {true, "/image.hex", "", "Debe seleccionar la ruta de los dos archivos"},
        {true, "/image.hex", "/copyflash.hex", "Debe seleccionar la ruta de los dos archivos"},
        {true, "/image.hex", "/CopyFlash/loader.hex",
         "No se puede leer el fichero /CopyFlash/loader.hex: "
         "no such file"}}) {
    FirmBench bench;
    if (c.connected) bench.Connect();
    bench.form.Get<TextBox>("FirmPath").SetText(c.image);
    bench.form.Get<TextBox>("LoaderPath").SetText(c.loader);
    bench.Start();
    EXPECT_EQ(bench.LastBox(), c.box);
    EXPECT_EQ(bench.Info(), "Preparado");
    EXPECT_EQ(bench.asked, "");
  }
}

/// Ahead of the erasing the operator is told what looks wrong, and may go on.
TEST(FirmPage, WarnsOfFilesThatLookWrong) {
  const std::string good = HexFile(30), loader = HexFile(2);
  const auto spoilt = [&](std::string_view from, std::string_view to) {
    return std::string(good).replace(good.find(from), from.size(), to);
  };
  struct Case {
    std::string image, loader;
    const char* warning;
  };
  for (const Case& c :
       {Case{spoilt("2146", "2147"), loader, "image.hex: Linea 1: la suma de control"},
        {spoilt("\r\n:", "\r\n;"), loader, "image.hex: Linea 2: no es un registro"},
        {good.substr(0, good.size() - 13), loader, "image.hex: falta el registro final"},
        {good, "", "CopyFlash.hex: falta el registro final"},
        // All but the last octet is sent.
        {good.substr(0, good.size() - 2), loader, "image.hex: Linea 31: no es un registro"},
        {good, loader.substr(0, loader.size() - 2), "CopyFlash.hex: Linea 3: no es un registro"},
        {loader, good, "intercambiados"},
        {std::string(17'000'000, ' ') + "\n" + good, loader, "image.hex: ocupa mas de 16 MB"}}) {
    SCOPED_TRACE(c.warning);
    FirmBench bench;
    bench.Connect();
    bench.world.files.contents["/image.hex"] = c.image;
    bench.world.files.contents["/CopyFlash.hex"] = c.loader;
    bench.world.dialogs.Answer(BoxAnswer::No);
    bench.Start();
    EXPECT_THAT(bench.LastBox(), HasSubstr(c.warning));
    EXPECT_EQ(bench.world.dialogs.boxes.size(), 1U);
    EXPECT_EQ(bench.asked, "");
    if (c.image.size() > good.size()) continue;  // it would take its time
    bench.Start();
    EXPECT_THAT(bench.asked, testing::StartsWith("#F0 "));
  }
}

TEST(IntelHex, IsToldByTheFirstLineThatIsNone) {
  using Kind = HexFault::Kind;
  const std::string good = ":0100000041BE\n", end = ":00000001FF";
  for (const auto& [file, fault] : {std::pair{good + "\r\n\n" + good + end, HexFault{}},
                                    {":0100000041BE \t\r\n" + end + "\t\nrubbish", {}},
                                    {good + ":0100000041BE0\n" + end, {Kind::NoRecord, 2}},
                                    {good + ":0200000041BD\n" + end, {Kind::NoRecord, 2}},
                                    {"\n:\n" + end, {Kind::NoRecord, 2}},
                                    {"0100000041BE\n" + end, {Kind::NoRecord, 1}},
                                    {":010000004GBE\n" + end, {Kind::NoRecord, 1}},
                                    {":0100000041BF\n" + end, {Kind::BadChecksum, 1}},
                                    {good, {Kind::NoEnd}}})
    EXPECT_EQ(FirstHexFault(file), fault) << file;
  EXPECT_EQ(FirstHexFault(std::string_view(end).substr(0, end.size() - 1)),
            (HexFault{Kind::NoRecord, 1}))
      << "what stands behind the text is none of it";
}

/// The name of a file counts, not that of a folder.
TEST(FirmwareDoubts, FindFilesThatAreSwapped) {
  struct Case {
    const char *image, *loader;
    int imageRecords, loaderRecords;
    bool isDoubted;
  };
  for (const Case& c : {Case{"/a/image.hex", "/a/CopyFlash.hex", 3, 2, false},
                        {"/CopyFlash/image.hex", "/CopyFlash/loader.hex", 3, 2, false},
                        {"/a/CopyFlash.hex", "/CopyFlash/image.hex", 3, 2, true},
                        {"/a/image.hex", "/a/CopyFlash.hex", 2, 2, true}})
    EXPECT_EQ(
        FirmwareDoubts({c.image, c.loader}, {HexFile(c.imageRecords), HexFile(c.loaderRecords)},
                       [](std::string_view text) { return std::string(text); })
            .size(),
        c.isDoubted ? 1U : 0U)
        << c.image;
}

TEST(FirmPage, EachFaultOfTheLoggerEndsItWithWordsOfWhatToDo) {
  struct Case {
    std::string fault;
    const char* what;
    FlashState flash;
    std::size_t taken;  ///< octets of the image
  };
  constexpr const char* kOutcomes[] = {"as it was", "may be erased", "is erased and holds no"};
  FirmBench sound;
  sound.Connect();  // and what comes first behind it
  const std::string damagedAnswer = "bad-checksum@" + std::to_string(sound.answered + 1) + "!once";
  const std::string echoedRequest = "echo@" + std::to_string(sound.requests + 1) + "!once";
  for (const Case& c :
       {Case{"refuse-erase", "answered something else: \"#DWLD_ERROR\"", FlashState::Kept, 0},
        // The answer that it erases is lost: the next that comes is that it has.
        {damagedAnswer, "answered something else: \"#DWLD_READY\"", FlashState::InDoubt, 0},
        // What is no word of refusal tells nothing of what the logger has heard.
        {echoedRequest, "answered something else: \"#F0\"", FlashState::InDoubt, 0},
        {"ready-late:45000", "", FlashState::Kept, 27'011},
        {"ready-late:60000", "fell silent", FlashState::Erased, 0},
        {"no-alive-mark@2", "no sign of life by octet 16386", FlashState::Erased, 16'386},
        {"silent-after-octet@9000", "no sign of life by octet 16386", FlashState::Erased, 9000},
        {"refuse-loader", "answered something else: \"#DWLD_ERROR\"", FlashState::Erased,
         27'011}}) {
    SCOPED_TRACE(c.fault);
    FirmBench bench(c.fault);
    bench.Connect();
    bench.world.port.SetPaced(true);
    bench.Start();
    EXPECT_EQ(bench.world.logger->Firmware().Image().size(), c.taken);
    EXPECT_EQ(bench.program.session.Flash(), c.flash);
    EXPECT_TRUE(bench.program.Connected) << "the session stays as it was";
    const auto& failed = bench.program.session.State().failed;
    ASSERT_EQ(failed.has_value(), *c.what != '\0');
    EXPECT_EQ(bench.Info() == "¡Error!", failed.has_value());
    EXPECT_EQ(bench.LastBox() == "¡Error!", failed.has_value());
    if (!failed) continue;
    const FaultWords words = WordsOf(*failed, "COM7");
    EXPECT_THAT(Filled(words.what), HasSubstr(c.what));
    EXPECT_THAT(Filled(words.outcome), HasSubstr(kOutcomes[static_cast<int>(c.flash)]));
  }
}

TEST(FirmPage, AFailedUpdateIsStartedAgain) {
  FirmBench bench("refuse-loader!once refuse-erase@2!once");
  bench.Connect();
  bench.Start();
  EXPECT_EQ(bench.LastBox(), "¡Error!");
  bench.world.port.HoldOutput(SimWorld::kPort, true);
  bench.Start();
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Erased) << "and no better by an order lost";
  bench.world.port.HoldOutput(SimWorld::kPort, false);
  bench.Start();
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Erased) << "a refusal brings nothing back";
  bench.Start();
  EXPECT_EQ(bench.LastBox(), "NO CORTE LA ALIMENTACION MIENTRAS DURE LA ACTUALIZACION");
  EXPECT_EQ(bench.world.logger->Firmware().Loader() + "\r\n", HexFile(20));
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Kept);
}

/// What was half sent may have been heard; a logger that tells of itself has its firmware.
TEST(FirmPage, ALineThatIsHeldLeavesADoubtUntilTheLoggerTellsOfItself) {
  FirmBench bench;
  bench.Connect();
  bench.world.port.HoldOutput(SimWorld::kPort, true);
  bench.Start();
  EXPECT_EQ(bench.program.session.Flash(), FlashState::InDoubt);
  bench.world.port.HoldOutput(SimWorld::kPort, false);
  bench.program.comms.ReadInfo();
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Kept);
  bench.world.line->Vanish();
  bench.Start();
  EXPECT_EQ(bench.program.session.Flash(), FlashState::Kept) << "nothing was sent";
}

TEST(FirmPage, ASessionThatEndsBehindTheQuestionIsNotUsed) {
  FirmBench bench;
  bench.Connect();
  bench.world.files.contents["/image.hex"] = "no hex";
  bench.world.dialogs.whileShown = [&](const MessageBox& box) {
    if (box.buttons == BoxButtons::YesNo) bench.program.session.Close(false);
  };
  bench.Start();
  EXPECT_EQ(bench.LastBox(), "Debe iniciar la comunicacion primero");
  EXPECT_EQ(bench.Info(), "Preparado");
}

TEST(FirmPage, ADialogueUnderWayIsNotDisturbed) {
  FirmBench bench;
  bench.Connect();
  bench.program.comms.LinkBusy = true;
  bench.Start();
  EXPECT_EQ(bench.Info(), "¡Error!");
  EXPECT_EQ(bench.LastBox(), "¡Error!\n\nLa linea esta ocupada: no se ha enviado nada");
  EXPECT_FALSE(bench.program.session.State().failed) << "it is not the other that has failed";
  EXPECT_EQ(bench.asked, "");
}

TEST(FirmPage, WhoBreaksItOffIsNotToldOfIt) {
  for (const bool leaves : {false, true}) {
    FirmBench bench;
    bench.Connect();
    bench.world.port.SetPaced(true);
    bench.world.loop.After(seconds(10), "break off", [&] {
      leaves ? bench.program.ShutDown() : bench.program.session.BreakOff();
    });
    bench.Start();
    EXPECT_EQ(bench.Info(), "¡Error!");
    EXPECT_THAT(bench.world.dialogs.boxes, IsEmpty());
    EXPECT_EQ(bench.program.session.Flash(), FlashState::Erased);
    if (leaves) continue;  // nobody looks any more
    EXPECT_FALSE(bench.program.Connected);
    EXPECT_EQ(FaceOf(bench.program.general.GetForm()["IniCom"]).Caption(), "Iniciar comunicacion");
  }
}

}  // namespace
}  // namespace ostrel
