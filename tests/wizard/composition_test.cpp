#include "wizard/composition.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "book/number_cleaning.h"
#include "sources/delimited_text.h"
#include "text/fault.h"

namespace quenda {
namespace {

using Texts = std::vector<std::string>;
using Order = std::vector<std::size_t>;

class Compose : public testing::Test {
 protected:
  Compose() {
    composition_.columns.names = {0, 1};
    composition_.columns.numbers = {2, 3};
    composition_.columns.addresses = {{{4, 5, 6}, {7}}};
    composition_.address_order = {0, 1, 2};
  }
  [[nodiscard]] Texts lines(const std::string& record) const {
    const RecordTable table = build_records(record + "\r\n", ';', [](auto, auto) {});
    EntryComposer composer(composition_, ';', [](std::string_view number, std::string& cleaned) {
      clean_number(number, "0049", cleaned);
    });
    FlatTable rows(3);
    composer.compose(table, 0, rows);
    Texts result;
    for (std::size_t i = 0; i < rows.rows(); ++i) result.emplace_back(rows.line(i));
    return result;
  }
  Composition composition_;
};

constexpr auto kRecord =
    "Meier;\"Hans\";+49 (0)30 / 123-45;0171 99;Hauptstr. 1;12345;Berlin;Am Ring 2";

TEST_F(Compose, OneLinePerNumberWithItsSuffixAndItsAddress) {
  composition_.suffixes = {"", "mobil", ""};
  composition_.bindings = {Binding::kAddress1, Binding::kAddress2, Binding::kNone};
  composition_.address_order = {2, 0, 1};
  EXPECT_EQ(lines(kRecord), (Texts{"Meier Hans;03012345;Berlin Hauptstr. 1 12345",
                                   "Meier Hans mobil;017199;Am Ring 2"}));
}

TEST_F(Compose, UnboundRowsHaveNoAddress) {
  EXPECT_EQ(lines("Meier;Hans;;0171 99;a;b;c;d"), Texts{"Meier Hans;017199;"});
}

TEST_F(Compose, FlipsTheName) {
  composition_.flip_name = true;
  EXPECT_EQ(lines("Meier;Hans;030;;a;b;c;d"), Texts{"Hans Meier;030;"});
}

TEST_F(Compose, KeepsTheBlankOfAnEmptyPartInside) {
  composition_.columns.names = {0};
  composition_.suffixes[0] = "mobil";
  composition_.bindings[0] = Binding::kAddress1;
  EXPECT_EQ(lines("Meier;;030;;Hauptstr. 1;;Berlin;"),
            Texts{"Meier  mobil;030;Hauptstr. 1  Berlin"});
}

TEST_F(Compose, NoLineBreakAndNoSuffixSeparatorReachesAnEntry) {
  composition_.suffixes[0] = "pr;ivat";
  composition_.bindings[0] = Binding::kAddress2;
  EXPECT_EQ(lines("Mei\rer;\rHans;030;;a;b;c;Weg\r1"), Texts{"Mei er  Hans pr,ivat;030;Weg 1"});
}

TEST_F(Compose, LeavesOutWhatIsNoNumber) {
  EXPECT_TRUE(lines("Name;Vorname;Telefon;Mobil;a;b;c;d").empty());
}

TEST_F(Compose, TellsOfEveryNumberAlsoOfThoseThatGiveNoEntry) {
  composition_.suffixes = {"", "mobil", ""};
  const RecordTable table = build_records("Meier;Hans;abc;+49 171 99\r\n", ';', [](auto, auto) {});
  EntryComposer composer(composition_, ';', [](std::string_view number, std::string& cleaned) {
    clean_number(number, "0049", cleaned);
  });
  Texts seen;
  composer.on_number = [&](const NumberSeen& n) {
    seen.push_back(std::to_string(n.row) + (n.numeric ? " " : " not ") + std::string(n.raw) + ">" +
                   std::string(n.number) + ">" + std::string(n.name));
  };
  composition_.columns.addresses = {};
  FlatTable rows(3);
  composer.compose(table, 0, rows);
  EXPECT_EQ(seen, (Texts{"0 not abc>0abc>Meier Hans", "1 +49 171 99>017199>Meier Hans mobil"}));
  EXPECT_EQ(rows.rows(), 1U);
  EXPECT_EQ(composer.name(), "Meier Hans");
}

TEST_F(Compose, RecordWithoutDelimiterHasNoLines) { EXPECT_TRUE(lines("Meier").empty()); }

TEST_F(Compose, MissingColumnIsAFault) {
  EXPECT_THROW(lines("Meier;Hans;030"), RuntimeFault);
  composition_.columns.numbers = {2};
  EXPECT_EQ(lines("Meier;Hans;030"), Texts{"Meier Hans;030;"}) << "unbound columns are not needed";
}

TEST(AddressOrders, ComeInASettledSequence) {
  EXPECT_TRUE(address_orders(0).empty());
  EXPECT_EQ(address_orders(1), std::vector<Order>{{0}});
  EXPECT_EQ(address_orders(2), (std::vector<Order>{{0, 1}, {1, 0}}));
  const std::vector<Order> three = {{0, 1, 2}, {0, 2, 1}, {1, 2, 0},
                                    {1, 0, 2}, {2, 0, 1}, {2, 1, 0}};
  EXPECT_EQ(address_orders(3), three);
  EXPECT_EQ(address_orders(4), three);
}

TEST(AddressOrders, NamesKeepSlashesOutAndCountUnnamedParts) {
  EXPECT_EQ(address_order_name({"Straße/Nr", "Ort"}, {1, 0}), "Ort/Straße-Nr");
  EXPECT_EQ(address_order_name({"", "PLZ", "Ort"}, {0, 2, 1}), "/Ort/PLZ");
}

TEST(AddressPreview, LeavesNoStraySlashes) {
  EXPECT_EQ(address_preview({"Straße", "Ort"}, {1, 0}), "Ort/Straße");
  EXPECT_EQ(address_preview({"Straße", "", "Ort"}, {0, 1, 2}), "Straße/Ort");
  EXPECT_EQ(address_preview({"Ort"}, {1, 0, 2}), "Ort");
  EXPECT_EQ(address_preview({"Ort"}, {0, 1, 2}), "Ort");
}

}  // namespace
}  // namespace quenda
