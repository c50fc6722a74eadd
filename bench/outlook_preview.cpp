// The preview of the Outlook page, which is built anew with every tick and every typed letter.
#include <benchmark/benchmark.h>

#include <string>

#include "sources/outlook_contacts.h"

namespace quenda {
namespace {

constexpr std::size_t kContacts = 10'000;

ContactTable contact_table() {
  ContactTable table;
  for (std::size_t i = 0; i < kContacts; ++i) {
    const std::string number = std::to_string(1'000'000 + i);
    OutlookContact contact;
    contact.fill("030 " + number);
    contact[1] = "Katharina";
    contact[2] = "Mustermann-" + number;
    contact[4] = "Lange Allee " + number + "\r\nHinterhaus";
    contact[5] = "12345";
    contact[6] = "Berlin";
    add_contact(table, contact);
  }
  return table;
}

/// Argument: how many of the eleven kinds are ticked. Every contact has a number of each.
void OutlookPreview(benchmark::State& state) {
  const ContactTable table = contact_table();
  OutlookChoice choice;
  for (std::size_t kind = 1; kind <= static_cast<std::size_t>(state.range(0)); ++kind) {
    choice.kinds[kind] = {.import = true, .first_address = true, .suffix = "privat"};
  }
  for ([[maybe_unused]] auto round : state) {
    benchmark::DoNotOptimize(preview_rows(table, choice).rows());
  }
}
BENCHMARK(OutlookPreview)->Arg(3)->Arg(11)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quenda
