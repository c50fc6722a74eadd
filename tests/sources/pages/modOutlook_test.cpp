#include "sources/pages/modOutlook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/shared/error_service.h"
#include "tests/shared/fake_outlook.h"
#include "text/fault.h"
#include "text/literal_1252.h"

namespace quenda {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(OutlookVersion, HasANameFromTheFirstToTheLastThatHadOne) {
  const std::pair<std::string_view, std::string_view> cases[] = {{"6", u8"Outlook®"_de},
                                                                 {"7", u8"Outlook®95"_de},
                                                                 {"13", u8"Outlook®Unknown"_de},
                                                                 {"15", u8"Outlook®2013"_de},
                                                                 {"16", u8"Outlook®v16"_de}};
  for (const auto& [major, name] : cases) EXPECT_EQ(outlook_version_name(major), name) << major;
}

class OutlookTest : public testing::Test {
 protected:
  /// A contact that tells its own name and number in two properties.
  static std::shared_ptr<FakeObject> contact(const std::string& name) {
    return outlook_contact({{"FirstName", name}, {"BusinessTelephoneNumber", "0" + name}});
  }
  void read() {
    came_through_ = outlook_.getContactsAll(
        contacts_,
        [this](std::size_t item, std::size_t total) { steps_.emplace_back(item, total); },
        [this] { return steps_.back().first < stop_at_; });
  }

  ErrorService service_;
  FakeAutomation automation_;
  modOutlook outlook_{service_.errors, automation_};
  std::vector<OutlookContact> contacts_;
  std::vector<std::pair<std::size_t, std::size_t>> steps_;
  std::size_t stop_at_ = 1000;
  bool came_through_ = false;
};

TEST_F(OutlookTest, DetectionTellsVersionAndCount) {
  install_outlook(automation_, "15.0.0.4420", {contact("Eva"), contact("Udo")});
  outlook_.isOutlookInstalled(false);
  EXPECT_EQ(outlook_.contact_count(), 0) << "not asked for";
  outlook_.isOutlookInstalled(true);
  EXPECT_TRUE(outlook_.installed());
  EXPECT_EQ(outlook_.major_version(), "15");
  EXPECT_EQ(outlook_.version_name(), u8"Outlook®2013"_de);
  EXPECT_EQ(outlook_.contact_count(), 2);
}

TEST_F(OutlookTest, NoOutlookIsNoFaultButOtherTroubleIsReported) {
  outlook_.isOutlookInstalled(true);
  EXPECT_FALSE(outlook_.installed());
  EXPECT_THAT(service_.reports, ElementsAre());

  install_outlook(automation_, "16.0", {contact("Eva")});
  FakeObject& application = *automation_.programs["Outlook.Application"];
  application.faults["Version"] = kFaultAutomation;
  outlook_.isOutlookInstalled(true);
  EXPECT_FALSE(outlook_.installed());
  application.faults.clear();
  application.texts["Version"] = "Beta";
  outlook_.isOutlookInstalled(true);
  EXPECT_FALSE(outlook_.installed());
  EXPECT_THAT(service_.reports,
              ElementsAre(Pair("modOutlook.isOutlookInstalled", kFaultAutomation),
                          Pair("modOutlook.isOutlookInstalled", kFaultTypeMismatch)));
  EXPECT_TRUE(service_.boxes.empty());
}

TEST_F(OutlookTest, ACountThatFailsStaysAsItWas) {
  const auto items = install_outlook(automation_, "16.0", {contact("Eva"), contact("Udo")});
  outlook_.isOutlookInstalled(true);
  items->faults["Count"] = kFaultAutomation;
  outlook_.isOutlookInstalled(true);
  EXPECT_TRUE(outlook_.installed());
  EXPECT_EQ(outlook_.contact_count(), 2);
  EXPECT_THAT(service_.reports, ElementsAre());
}

TEST_F(OutlookTest, ReadsEveryPropertyIntoItsField) {
  auto item = std::make_shared<FakeObject>();
  item->type = "ContactItem";
  for (const std::string_view name : kContactProperties) {
    item->texts[std::string(name)] = "<" + std::string(name) + ">";
  }
  install_outlook(automation_, "16.0", {item});
  outlook_.isOutlookInstalled(true);
  read();
  ASSERT_EQ(contacts_.size(), 1U);
  for (std::size_t i = 0; i < kContactFields; ++i) {
    EXPECT_EQ(contacts_[0][i], "<" + std::string(kContactProperties[i]) + ">") << i;
  }
  EXPECT_EQ(contacts_[0][14], contacts_[0][15]) << "the second business number repeats the first";
}

TEST_F(OutlookTest, OtherItemsAreCountedAndLeaveAnEmptyRecord) {
  install_outlook(automation_, "16.0",
                  {contact("Eva"), outlook_distribution_list(), contact("Udo")});
  outlook_.isOutlookInstalled(true);
  for (int round = 0; round < 2; ++round) {
    read();
    EXPECT_TRUE(came_through_);
    ASSERT_EQ(contacts_.size(), 3U);
    EXPECT_EQ(contacts_[0][1], "Eva");
    EXPECT_EQ(contacts_[1], OutlookContact());
    EXPECT_EQ(contacts_[2][14], "0Udo");
    EXPECT_EQ(outlook_.skipped_count(), 1) << "counted anew each time";
  }
}

TEST_F(OutlookTest, StoppingLeavesTheOtherRecordsEmpty) {
  install_outlook(automation_, "16.0", {contact("Eva"), contact("Udo"), contact("Ida")});
  outlook_.isOutlookInstalled(true);
  stop_at_ = 2;
  read();
  EXPECT_THAT(steps_, ElementsAre(Pair(1U, 3U), Pair(2U, 3U)));
  ASSERT_EQ(contacts_.size(), 3U);
  EXPECT_EQ(contacts_[1][1], "Udo");
  EXPECT_EQ(contacts_[2], OutlookContact());
}

TEST_F(OutlookTest, AFaultWhileReadingLeavesTheCallersContactsAlone) {
  contacts_.resize(7);
  read();
  EXPECT_FALSE(came_through_) << "nothing installed";

  const auto last = contact("Ida");
  install_outlook(automation_, "16.0", {contact("Eva"), last});
  outlook_.isOutlookInstalled(true);
  last->faults["ISDNNumber"] = kFaultNoSuchMember;
  read();
  EXPECT_FALSE(came_through_);
  EXPECT_EQ(contacts_.size(), 7U);
  EXPECT_THAT(service_.reports, ElementsAre(Pair("modOutlook.getContactsAll", kFaultNoSuchMember)));
}

}  // namespace
}  // namespace quenda
