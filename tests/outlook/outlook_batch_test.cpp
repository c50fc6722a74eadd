// The console tool and Outlook.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "text/text.h"
#include "tools/driver/suite_folder.h"
#include "tools/outlook/outlook_standin.h"

namespace quenda {
namespace {

using testing::HasSubstr;

class OutlookBatch : public testing::Test {
 protected:
  void SetUp() override {
    if (!may_register_programs()) GTEST_SKIP() << "the Outlook of this machine stays as it is";
    suite_.set_book("Feuerwehr;112;0;0;0;0;;;[vcd()vcd]\r\n");
  }
  [[nodiscard]] ConsoleRun run(std::string_view options = "") const {
    return run_console_tool(concat("--outlook --suite \"", suite_.path(""), ".\" ", options));
  }

  SuiteFolder suite_;
};

TEST_F(OutlookBatch, ContactsReachTheBookWithTicksAndSuffixesOfTheSettings) {
  suite_.write("data\\sett_import.ini",
               "[Import]\r\nOlNumber=00000010000\r\nOlAdress=00000000000100\r\n");
  const OutlookStandIn outlook(
      "contact=FirstName=J\xC3\xB6rg|LastName=\xC5\x81ukasz|MobileTelephoneNumber=+49 171 555000"
      "|HomeTelephoneNumber=030 1111111|BusinessAddressPostalCode=12345|BusinessAddressCity=K\xC3"
      "\xB6ln|BusinessAddressStreet=Ring 5\\nHinterhaus|Birthday=25569\n"
      "list=\n"
      "contact=CompanyName=Beispiel GmbH|MobileTelephoneNumber=0172 5550001\n");
  const ConsoleRun done = run();
  EXPECT_EQ(done.exit_code, 0U) << done.output;
  EXPECT_EQ(
      suite_.book(),
      "Feuerwehr;112;0;0;0;0;;;[vcd()vcd]\r\n"
      "J\xF6rg Lukasz mobil;0171555000;0;0;0;0;12345 K\xF6ln, Ring 5 Hinterhaus;;[vcd()vcd]\r\n"
      "Beispiel GmbH  mobil;01725550001;0;0;0;0;,;;[vcd()vcd]\r\n");
  EXPECT_THAT(outlook.counted("live"), testing::ElementsAre(0));
}

TEST_F(OutlookBatch, WhatStandsInTheWayIsSaidAndTheBookStays) {
  struct Case {
    const char* name;
    const char* script;
    const char* message;
  };
  const Case cases[] = {
      {"creation fails", "refuses=yes\ncontacts=2", "Outlook nicht installiert!"},
      {"no contacts", "version=14.0.7\n", "2010  v14 Keine Daten gefunden!"},
      {"no ticked numbers", "contact=FirstName=Eva|ISDNNumber=030 1234567",
       "Keine Daten gefunden!"},
      {"no such property", "contacts=3\nmissing=ISDNNumber", "Fehler 438"},
      {"Outlook dies", "contacts=3\ndies_at=2", "Ein Import der Daten ist nicht m\xC3\xB6glich!"},
  };
  const std::string book = suite_.book();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const OutlookStandIn outlook(c.script);
    const ConsoleRun refused = run();
    EXPECT_EQ(refused.exit_code, 1U);
    EXPECT_THAT(refused.output, HasSubstr(c.message));
    EXPECT_EQ(suite_.book(), book);
  }
  EXPECT_THAT(run().output, HasSubstr("Outlook nicht installiert!"));
}

TEST_F(OutlookBatch, AnOutlookThatIsJustEndingOrBusyIsAskedAgain) {
  const OutlookStandIn outlook("contacts=2\nleaves=4");
  const ConsoleRun done = run("--dry-run");
  EXPECT_EQ(done.exit_code, 0U) << done.output;
  EXPECT_THAT(done.output, HasSubstr("Eva Muster1000001"));
}

}  // namespace
}  // namespace quenda
