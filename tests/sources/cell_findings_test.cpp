#include "sources/cell_findings.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kHeader =
    "Vorname,Nachname,Firma,Telefon (privat),Mobiltelefon,Ort privat\r\n";

bool wants_adapting(std::string_view records) {
  return has_cells_to_adapt(concat(kHeader, records), ',');
}

TEST(CellsToAdapt, AreThoseOfWhichSomethingWouldBeLost) {
  for (const std::string_view sound : {
           "",
           "Ida,Falk,,030 5550301,,\r\n",
           "Ida,Falk,\"Falk; Co\",+49 (30) 555-03.01,030/5550302,\"Ulm, Donau\"\r\n",
           ",,Falk KG,,,\r\n",          // no number, so nothing gets lost
           ",,,030 5550301,,\r\n",      // nothing stands in
           "Ida,Falk,,Zentrale,,\r\n",  // no number either way
           "\"Ida\",\"Falk\",\"\",\"030 5550301\",\"\",\"\"\r\n",
       }) {
    EXPECT_FALSE(wants_adapting(sound)) << sound;
  }
  for (const std::string_view odd : {
           ",,Falk KG,030 5550301,,\r\n",
           "\"\",\" \",\"Falk KG\",\"\",\"0171 5550301\",\"\"\r\n",
           "Ida,Falk,,030 5550301 ::: 030 5550302,,\r\n",
           "Ida,Falk,,030 5550301 / 030 5550302,,\r\n",
           "Ida,Falk,,030 5550301 (Laden),,\r\n",
           "Ida,Falk,,030 \x96 5550301,,\r\n",
           "Ida,\"Falk; Ina\",,030 5550301,,\r\n",
           "Ida,Falk,,030 5550301,,\"Ulm; Donau\"\r\n",
           "A,B,,030 5550301,,\r\nIda,Falk,,\"030 5550301\r\n030 5550302\",,\r\n",
       }) {
    EXPECT_TRUE(wants_adapting(odd)) << odd;
  }
  EXPECT_FALSE(has_cells_to_adapt("Name,Rufnummer\r\nFalk,030 1 (Laden)\r\n", ','))
      << "of an unknown file nobody knows which columns are numbers";
}

}  // namespace
}  // namespace quenda
