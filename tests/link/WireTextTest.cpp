#include <gmock/gmock.h>

#include "link/LineReader.h"
#include "link/WireText.h"

namespace ostrel {
namespace {

TEST(BracedFieldOfLine, CountsOpeningBraces) {
  struct Case {
    std::string_view line;
    int n;
    std::string_view field;
  };
  const std::string_view braces = "K={one,two},{x}";
  const Case cases[] = {{"A,B", -4, "A,B"},     {"A,B", 3, ""},   {braces, 1, "K={one,two"},
                        {braces, 2, "one,two"}, {braces, 3, "x"}, {"K={a{b}c}", 3, "b"},
                        {"K={open", 2, "open"}, {"", 1, ""}};
  for (const Case& c : cases)
    EXPECT_EQ(BracedFieldOfLine(c.line, c.n), c.field) << c.line << " " << c.n;
}

TEST(LineReader, TakesFieldsFromTheSecondOn) {
  LineReader line("#BD000KEY,name,7.5,,99999, 1e40,-3");
  std::int16_t small = 5;
  float real = 2;
  EXPECT_EQ(line.Text(), "name");
  line.Into(small);
  EXPECT_EQ(small, 8) << "halves go to the even number";
  line.Into(real);
  EXPECT_EQ(real, 0) << "an empty field is 0";
  line.Into(small);
  line.Into(real);
  EXPECT_EQ(small, 8) << "too wide a number leaves the field";
  EXPECT_EQ(real, 0) << "too wide a number leaves the field";
  EXPECT_EQ(line.Index(), -3);
  for (int beyond = 0; beyond < 3; ++beyond) EXPECT_EQ(line.Text(), "");
  EXPECT_EQ(LineReader("K,1e10").Index(), -1);
}

TEST(WireText, TraceHidesAccessCodes) {
  const std::pair<std::string, std::string> cases[] = {
      {"#111234", "#11****"},       {"#45000ID=Pozo #11", "#45000ID=Pozo #11"},
      {"#F6;111234", "#F6;11****"}, {"#BD011NAME,a;11b", "#BD011NAME,a;11b"},
      {"ATD111;112", "ATD111;112"},
  };
  for (const auto& [text, shown] : cases) EXPECT_EQ(MaskCode(text), shown);
}

TEST(MaskPasswords, LeavesNothingOfThem) {
  const std::string withFtp = "#BD042GPRS,apn,P,user,1,2,3,0,ip,4,5,1,fip,/p,fu,Q,6,7";
  for (const auto& [text, masked] : std::vector<std::pair<std::string, std::string>>{
           {"#45007APNPASS=a,b", "#45007APNPASS=****"},
           {"#1F;45007FTPPASS=", "#1F;45007FTPPASS=****"},
           {"APNPASS=x", "APNPASS=****"},
           {withFtp, "#BD042GPRS,apn,****,user,1,2,3,0,ip,4,5,1,fip,/p,fu,****,6,7"},
           {"#00;" + withFtp.substr(1),
            "#00;BD042GPRS,apn,****,user,1,2,3,0,ip,4,5,1,fip,/p,fu,****,6,7"},
           {"#BD042GPRS,apn,,user,1,2,3,0,ip,4,5,1", "#BD042GPRS,apn,,user,1,2,3,0,ip,4,5,1"},
           {"#BD042GPRS,apn,a,b,user,1,2,3,0,ip,4,5,1", "#BD042GPRS,****"},
           {"#45009+ALMD0=x,INDEX= 0,GPRS,EQ= 0", "#45009+ALMD0=x,INDEX= 0,GPRS,EQ= 0"},
           {"#BD426GPRS,ip,topsecret,FTPPASS=,1,2,3,0,ip,4,5,1",
            "#BD426GPRS,ip,****,FTPPASS=,1,2,3,0,ip,4,5,1"},
           {"#45007APNPASS=BD426GPRS,FTPPASS=x", "#45007APNPASS=****"},
           {"#BD", "#BD"}})
    EXPECT_EQ(MaskPasswords(text), masked) << text;
}

}  // namespace
}  // namespace ostrel
