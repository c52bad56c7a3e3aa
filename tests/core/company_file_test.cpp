#include "core/company_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/error.h"

namespace veldox {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Reading {
  CompanyTexts texts{"1", "2", "3", "4", "5"};
  std::vector<std::string> bad;
};

Reading Read(std::string_view text) {
  Reading reading;
  ReadCompanyFile(text, "shop.dcn", reading.texts, [&](int number, std::string_view line) {
    reading.bad.push_back(std::to_string(number) + ':' + std::string(line));
  });
  return reading;
}

const CompanyTexts kShop{"Acme  Racing ", "1 Main = Street", "Elyria, OH", "", "acme.example"};

TEST(CompanyFile, HasFiveLinesEachWithItsPrefix) {
  EXPECT_EQ(ComposeCompanyFile(kShop),
            "Company Name = Acme  Racing \r\nCompany Address = 1 Main = Street\r\n"
            "Company City = Elyria, OH\r\nCompany Phone = \r\nCompany WebSite = acme.example\r\n");
  EXPECT_EQ(ComposeCompanyFile({}),
            "Company Name = \r\nCompany Address = \r\nCompany City = \r\nCompany Phone = \r\n"
            "Company WebSite = \r\n");
}

TEST(CompanyFile, ComesBackAsItWasWritten) {
  const Reading reading = Read(ComposeCompanyFile(kShop));
  EXPECT_EQ(reading.texts, kShop);
  EXPECT_THAT(reading.bad, IsEmpty());
}

TEST(CompanyFile, LoadsTheSameInAnyOrderAndWithPlainLineEnds) {
  const Reading reading = Read(
      "Company WebSite = acme.example\nCompany Phone = \nCompany Name = Acme  Racing \n"
      "Company City = Elyria, OH\nCompany Address = 1 Main = Street");
  EXPECT_EQ(reading.texts, kShop);
  EXPECT_THAT(reading.bad, IsEmpty());
}

TEST(CompanyFile, TellsABadLineAndReadsOn) {
  const Reading reading = Read(
      "Company Name = A\r\ncompany city = B\r\n\r\nCompany Phone =\r\nCompany WebSite = E\r\n");
  EXPECT_EQ(reading.texts, (CompanyTexts{"A", "2", "3", "4", "E"}));
  EXPECT_THAT(reading.bad, ElementsAre("2:company city = B", "3:", "4:Company Phone ="));
}

TEST(CompanyFile, TakesBlankLinesAtItsEndForNothing) {
  EXPECT_THAT(Read("Company Name = A\r\n\r\n\r\n").bad, IsEmpty());
  EXPECT_THAT(Read("").bad, IsEmpty());
  EXPECT_THAT(Read("\r\n").bad, IsEmpty());
}

TEST(CompanyFile, KeepsATextInItsLine) {
  CompanyTexts texts;
  texts[0] = "two\r\nlines";
  EXPECT_EQ(ComposeCompanyFile(texts).substr(0, 27), "Company Name = two  lines\r\n");
}

TEST(CompanyFile, RefusesWhatIsNoText) {
  EXPECT_THROW(Read(std::string_view("Company Name = A\0B", 18)), CommandError);
  EXPECT_THROW(Read("Company Name = " + std::string(100'000, 'x')), CommandError);
}

}  // namespace
}  // namespace veldox
