// Reading contacts from a program of its own: what it tells of its types, how often it is asked.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32/com/automation_com.h"
#include "sources/pages/modOutlook.h"
#include "tests/shared/error_service.h"
#include "text/literal_1252.h"
#include "tools/outlook/outlook_standin.h"

namespace quenda {
namespace {

using testing::ElementsAre;

class OutlookReading : public testing::Test {
 protected:
  void SetUp() override {
    if (!may_register_programs()) GTEST_SKIP() << "the Outlook of this machine stays as it is";
  }
  void read() {
    ComAutomation automation([this] { ++pumped_; });
    modOutlook outlook(service_.errors, automation);
    contacts_.clear();
    outlook.isOutlookInstalled(true);
    name_ = outlook.version_name();
    came_through_ = outlook.getContactsAll(
        contacts_, [](std::size_t, std::size_t) {}, [] { return true; });
    skipped_ = outlook.skipped_count();
  }

  ErrorService service_;
  std::string name_;
  std::vector<OutlookContact> contacts_;
  bool came_through_ = false;
  int skipped_ = 0;
  int pumped_ = 0;
};

TEST_F(OutlookReading, ContactsAreKnownByWhateverTheProgramTellsOfItsTypes) {
  for (const char* types : {"interface", "class", "nothing"}) {
    SCOPED_TRACE(types);
    const OutlookStandIn outlook(std::string("version=15.0.0.4420\ntypes=") + types +
                                 "\ncontact=FirstName=Eva|Birthday=25569|Categories=\xD0\x96\n"
                                 "list=\n"
                                 "contact=FirstName=Udo|BusinessTelephoneNumber=030 7654321\n");
    read();
    EXPECT_EQ(name_, u8"Outlook®2013"_de);
    EXPECT_EQ(skipped_, 1);
    ASSERT_EQ(contacts_.size(), 3U);
    EXPECT_EQ(contacts_[0][0], "?") << "a character that the phone book cannot write";
    EXPECT_EQ(contacts_[0][1], "Eva");
    EXPECT_EQ(contacts_[0][22], "01.01.1970");
    EXPECT_EQ(contacts_[1], OutlookContact());
    EXPECT_EQ(contacts_[2][14], "030 7654321");
    EXPECT_EQ(contacts_[2][15], "030 7654321");
    EXPECT_THAT(outlook.counted("live"), ElementsAre(0));
  }
}

TEST_F(OutlookReading, NamesAreLookedUpOncePerTypeOfObject) {
  const OutlookStandIn outlook("contacts=60\n");
  read();
  EXPECT_EQ(contacts_.size(), 60U);
  // Version, and the way to the contacts twice (counting, reading); then 23 different properties.
  EXPECT_THAT(outlook.counted("lookups"), ElementsAre(1 + 2 * 4 + 23));
}

TEST_F(OutlookReading, TheWindowLivesWhileOutlookIsBusy) {
  const OutlookStandIn outlook("contacts=3\nbusy_from=1\nbusy_for=2000\n");
  read();
  EXPECT_TRUE(came_through_);
  EXPECT_EQ(contacts_.at(0)[1], "Eva");
  EXPECT_EQ(contacts_.at(2)[1], "Eva");
  EXPECT_EQ(skipped_, 0);
  EXPECT_GT(pumped_, 10);
}

}  // namespace
}  // namespace quenda
