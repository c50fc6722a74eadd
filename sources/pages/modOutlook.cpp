#include "sources/pages/modOutlook.h"

#include <array>
#include <memory>

#include "platform/automation.h"
#include "support/procedure.h"
#include "text/conversions.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kProgram = "Outlook.Application";
constexpr long kContactsFolder = 10;

/// Names from version 7 on, one per major version.
constexpr int kFirstNamedVersion = 7;
constexpr std::array kVersionNames = {
    u8"Outlook®95"_de,      u8"Outlook®97"_de,   u8"Outlook®2000"_de,
    u8"Outlook®2002 XP"_de, u8"Outlook®2003"_de, u8"Outlook®2007"_de,
    u8"Outlook®Unknown"_de, u8"Outlook®2010"_de, u8"Outlook®2013"_de};

/// The order in which a contact's properties are read.
constexpr std::array<std::size_t, kContactFields> kReadingOrder = {
    0, 1, 2, 3, 6, 7, 5, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23};

std::unique_ptr<AutomationObject> contact_items(AutomationObject& application) {
  return application.object("GetNamespace", "MAPI")
      ->object("GetDefaultFolder", kContactsFolder)
      ->object("Items");
}

}  // namespace

std::string outlook_version_name(std::string_view major) {
  const int version = to_int16(major);
  const int last_named = kFirstNamedVersion + static_cast<int>(kVersionNames.size()) - 1;
  if (version < kFirstNamedVersion) return std::string(u8"Outlook®"_de);
  if (version > last_named) return concat(u8"Outlook®v"_de, major);
  return std::string(kVersionNames.at(static_cast<std::size_t>(version - kFirstNamedVersion)));
}

void modOutlook::isOutlookInstalled(bool read_count) {
  procedure_with_own_report(
      errors_, "modOutlook.isOutlookInstalled", {read_count},
      [&] {
        const auto application = automation_.create(kProgram);
        installed_ = true;
        major_version_ = split(application->text("Version"), ".").front();
        version_name_ = outlook_version_name(major_version_);
        if (!read_count) return;
        skip_faults({[&] {
          contact_count_ = static_cast<std::int32_t>(contact_items(*application)->number("Count"));
        }});
      },
      [&](const RuntimeFault& fault, int statement) {
        if (fault.number() != kFaultNoComponent) {
          errors_.ErrorLogNew("modOutlook.isOutlookInstalled", {}, fault, statement);
        }
        installed_ = false;
      })
      .or_go_on();
}

bool modOutlook::getContactsAll(std::vector<OutlookContact>& contacts, const OnItem& on_item,
                                const GoOn& go_on) {
  bool came_through = false;
  procedure(errors_, "modOutlook.getContactsAll", {}, [&] {
    if (!installed_) return;
    const auto count = static_cast<std::size_t>(contact_count_);
    std::vector<OutlookContact> read(count);
    const auto items = contact_items(*automation_.create(kProgram));
    skipped_count_ = 0;
    for (std::size_t i = 0; i < count; ++i) {
      on_item(i + 1, count);
      const auto item = items->object("Item", static_cast<long>(i + 1));
      if (item->type_name() == "ContactItem") {
        for (const std::size_t field : kReadingOrder) {
          read[i][field] = item->text(kContactProperties[field]);
        }
      } else {
        ++skipped_count_;
      }
      if (!go_on()) break;
    }
    contacts = std::move(read);
    came_through = true;
  }).or_go_on();
  return came_through;
}

}  // namespace quenda
