#include "sources/outlook_contacts.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace quenda {
namespace {

/// A contact whose every field tells its own place, so that a swap of two shows.
OutlookContact numbered_contact() {
  OutlookContact contact;
  for (std::size_t i = 0; i < contact.size(); ++i) contact[i] = "f" + std::to_string(i);
  return contact;
}

std::array<std::string, 3> row(const FlatTable& table, std::size_t at) {
  return {std::string(table.cell(at, 0)), std::string(table.cell(at, 1)),
          std::string(table.cell(at, 2))};
}
using Row = std::array<std::string, 3>;

TEST(ContactTable, PutsEveryFieldIntoItsColumn) {
  ContactTable table;
  OutlookContact contact = numbered_contact();
  contact[4] = "Hauptstr. 1\r\nHinterhaus";
  add_contact(table, contact);
  const std::vector<std::string> expected = {
      "f1;f2",      "f8",  "f9",  "f10", "f14",
      "f15",        "f16", "f17", "f18", "f20",
      "f21",        "f19", "f22", "f23", "f5 f6;Hauptstr. 1 Hinterhaus",
      "f11 f12;f13"};
  for (std::size_t column = 0; column < expected.size(); ++column) {
    EXPECT_EQ(table.cell(0, column), expected[column]) << "column " << column;
  }
}

TEST(ContactTable, CompanyStandsForAMissingName) {
  ContactTable table;
  OutlookContact contact;
  contact[3] = "Beispiel GmbH";
  contact[14] = "030 1234567";
  add_contact(table, contact);
  OutlookChoice choice;
  choice.kinds[4] = {.import = true, .suffix = "Firma"};
  const FlatTable rows = preview_rows(table, choice);
  ASSERT_EQ(rows.rows(), 1U);
  EXPECT_EQ(row(rows, 0), (Row{"Beispiel GmbH  Firma", "030 1234567", ""}));
}

TEST(ContactTable, SeparatorsAndLineBreaksDoNotReachAnEntry) {
  OutlookContact contact;
  contact[1] = "Ann\r\nMarie";
  contact[2] = "Wei;l";
  contact[4] = "Weg 1;\nHof";
  contact[8] = "030;12\r\n34";
  ContactTable table;
  add_contact(table, contact);
  OutlookChoice choice;
  choice.kinds[1] = {.import = true, .first_address = true, .suffix = "a;b"};
  EXPECT_EQ(row(preview_rows(table, choice), 0),
            (Row{"Ann Marie Wei,l a,b", "03012 34", ", Weg 1, Hof"}));
}

class Preview : public testing::Test {
 protected:
  Preview() { add_contact(table_, numbered_contact()); }
  [[nodiscard]] FlatTable rows() const { return preview_rows(table_, choice_); }
  ContactTable table_;
  OutlookChoice choice_;
};

TEST_F(Preview, HasARowPerTickedKindInTheOrderOfTheKinds) {
  choice_.kinds[11] = {.import = true, .suffix = "z"};
  choice_.kinds[1] = {.import = true, .first_address = true, .suffix = "privat"};
  choice_.kinds[10] = {.import = true, .first_address = true, .suffix = {}};
  ASSERT_EQ(rows().rows(), 3U);
  EXPECT_EQ(row(rows(), 0), (Row{"f1 f2 privat", "f8", "f5 f6, f4"}));
  EXPECT_EQ(row(rows(), 1), (Row{"f1 f2", "f21", "f11 f12, f13"}));
  EXPECT_EQ(row(rows(), 2), (Row{"f1 f2 z", "f19", ""}));
}

TEST_F(Preview, FlipsNameAndAddress) {
  choice_.kinds[9] = {.import = true, .first_address = true, .suffix = {}};
  choice_.flip_name = true;
  choice_.flip_address = true;
  EXPECT_EQ(row(rows(), 0), (Row{"f2 f1", "f20", "f4, f5 f6"}));
}

TEST_F(Preview, KindsWithTwoBoxesTakeAnAddressFromExactlyOne) {
  choice_.kinds[7] = {.import = true, .first_address = true, .suffix = {}};
  EXPECT_EQ(row(rows(), 0)[2], "f5 f6, f4");
  choice_.kinds[7].second_address = true;
  EXPECT_EQ(row(rows(), 0)[2], "");
  choice_.kinds[7].first_address = false;
  EXPECT_EQ(row(rows(), 0)[2], "f11 f12, f13");
}

TEST_F(Preview, LeavesOutEmptyNumbers) {
  table_.clear();
  add_contact(table_, OutlookContact());
  choice_.kinds[1].import = true;
  EXPECT_EQ(rows().rows(), 0U);
}

}  // namespace
}  // namespace quenda
