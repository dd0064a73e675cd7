#include "PageFixture.h"
#include "pages/Aut_Voz.h"
#include "pages/General.h"
#include "pages/bus/CONF_MODBUS.h"
#include "pages/inputs/SampleRate.h"

namespace ostrel {
namespace {

using FirmwareNotices = PageFixture;

TEST_F(FirmwareNotices, StandWhereTheConnectedFirmwareLacksSomething) {
  SelectModel("Tavro BQ");
  General general{context};
  SampleRate sampling{context};
  CONF_MODBUS bus{context};
  Aut_Voz voice{context};
  struct Case {
    Page& page;
    std::int32_t feature;
    const char* lacks;
  };
  for (const Case& c :
       {Case{general, 0x10000,
             "el modo extendido en las mascaras, solo puede seleccionar DI0 a DI7 y A0 a A3."},
        Case{sampling, 0x100000, "la configuracion del peso por pulso en los totalizadores."},
        Case{bus, 0x2000, "el modo esclavo en MODBUS."},
        Case{voice, 0x1000, "la funcion de ejecucion de macro por llamada perdida"}}) {
    SelectModel("Tavro BQ");
    Start(c.page);
    const auto warns = [&](bool connected, std::int32_t features) {
      Connected = connected;
      info.Features = features;
      Tick();
      return Shown(c.page, {"WarningText"}) == "1";
    };
    EXPECT_FALSE(warns(false, 0));
    EXPECT_FALSE(warns(true, c.feature));
    EXPECT_TRUE(warns(true, ~c.feature));
    EXPECT_EQ(Caption(c.page, "WarningText"),
              std::string("La version de firmware del Tavro BQ no soporta ") + c.lacks);
    SelectModel("Ostrel S100");
    Tick();
    EXPECT_NE(Caption(c.page, "WarningText").find("Ostrel S100"), std::string::npos);
  }
}

}  // namespace
}  // namespace ostrel
