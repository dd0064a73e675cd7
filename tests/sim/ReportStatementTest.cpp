#include "sim/StatementBench.h"

namespace ostrel::sim {
namespace {

TEST(SimStatement, OfTimers) {
  ExpectTaken({
      {Model::KA1, "CT3= 60,EQ= 0,ACT= 5 42", "CTIMER,3,127,0,86400,60,0"},
      {Model::KA1, "CT15= .5,START=8:05:00,STOP=23:59:59,WEEK=1000001,EQ= 16,ACT=",
       "CTIMER,15,65,29100,86399,0.5,16"},
      {Model::KA1, "CT0= 60,EQ= 3,ACT= 43 7", "CTIMER.ACTION,0,43,7,0,0,0,0,0,0"},
      {Model::KA1, "-CT3", "CTIMER,3,0,0,0,0,0", kAllFeatures, "CT3= 60,EQ= 3,ACT= 5"},
      {Model::KA1, "-CT3", "CTIMER.ACTION,3,0,0,0,0,0,0,0,0", kAllFeatures, "CT3= 60,EQ= 3,ACT= 5"},
      {Model::KA1, "LT15= 2147472000,ACT= 5 42", "LTIMER,15,2147472000"},
      {Model::KA1, "-LT3", "LTIMER,3,0", kAllFeatures, "LT3= 86400,ACT= 5"},
      {Model::KA1, "WT2=8:05:00,WEEK=1111100,ACT= 4", "WTIMER,2,31,29100"},
      {Model::KA1, "-WT2", "WTIMER,2,0,0", kAllFeatures, "WT2=8:05:00,WEEK=1111100,ACT= 4"},
      {Model::KA1, "MT15=6:00:00,MASK= 4294967295,ACT= 7", "MTIMER,15,4294967295,21600"},
      {Model::KA1, "-MT0", "MTIMER,0,0,0", kAllFeatures, "MT0=6:00:00,MASK= 1,ACT= 7"},
  });
  ExpectRefused(Model::VR200,
                "CT16= 60,EQ= 0,ACT=;-CT16;LT0= 60,EQ= 0,ACT=;-LT16;LT0= 2147483648,ACT=;"
                "WT0= 8:00:00,WEEK=1111111,ACT=;WT0=8:00:00,WEEK= 127,ACT=;"
                "WT0=24:00:00,WEEK=1111111,ACT=;-WT16;MT0=8:00:00,MASK=1,ACT=;"
                "MT0=8:00:00,MASK= 4294967296,ACT=;-MT16");
  ExpectRefused(Model::VR200,
                "60,EQ= 0,ACT=; 60,EQ= 17,ACT=; 60,EQ= 0; 60,EQ= 0,ACT=5;"
                " 60,START=8:00:00,STOP=9:00:00,EQ= 0,ACT=; 60,EQ= 0,ACT= 1 2 3 4 5 6 7 8 9",
                "CT0=");
}

TEST(SimStatement, OfMacrosGprsAndVoice) {
  ExpectTaken({
      {Model::KA1, "MACRO39={S0=1,W 5,NAME=Bomba}", "MACROS,39,{S0=1,W 5,NAME=Bomba}"},
      {Model::KA1, "F15={D0&D1}", "F,15,{D0&D1}"},
      {Model::KA1, "APNPASS=a=b", "GPRS,,a=b,,10,60,120,0,0,0,300,0", kGprs},
      {Model::KA1, "SERVERPORT= 65535", "GPRS,,,,10,60,120,0,0,65535,300,0", kGprs},
      {Model::KA1, "GPRSDIS", "GPRS,,,,10,60,120,0,0,0,300,0", kGprs, "GPRSEN"},
      {Model::KA1, "FTPIP=", "GPRS,,,,10,60,120,0,0,0,300,0,,,,,10,60"},
      {Model::KA1, "FTPRETRYTIME= 32767", "GPRS,,,,10,60,120,0,0,0,300,0,0,,,,10,32767"},
  });
  ExpectRefused(Model::VR200,
                "MACRO56={X};MACRO0={X;MACRO0=X};MACRO0 ={X};MACRO0={X}Y;MACRO0={X}};F16={X};"
                "CLEARMACRO0;APNSERVER;APNSERVER=a,b;APNRETRIES=3;APNRETRIES= 32768;APNALCON= 1;"
                "APNALCON=2;SERVERPORT= 65536;GPRSEN=1;+TEL=;+TEL=600,1;-TEL=600;OFFTIME= 1;"
                "AUX1RATIO= 1");
}

TEST(SimStatement, MacrosShareAMemoryOf1024Characters) {
  const Identity self{Model::KA1, kAllFeatures};
  Configuration conf;
  const auto add = [&](std::size_t length) {
    return ApplyStatement("F0={" + std::string(length - 5, 'x') + "}", self, conf).empty();
  };
  EXPECT_TRUE(add(1000));
  EXPECT_FALSE(add(25));
  EXPECT_TRUE(add(24)) << "the same number stands twice";
  EXPECT_FALSE(add(5));
  EXPECT_EQ(conf.macros.size(), 2U);
  EXPECT_EQ(ApplyStatement("CLEARMACRO", self, conf), "");
  int lines = 0;
  while (add(5)) ++lines;
  EXPECT_EQ(lines, 56) << "programs hold no more lines";
}

}  // namespace
}  // namespace ostrel::sim
