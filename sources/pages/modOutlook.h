#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "sources/outlook_contacts.h"

namespace quenda {

class Automation;
class clsErrorHandling;

/// The name that users know a version of Outlook by, from its major version number. Fault 13 when
/// the text is no number.
std::string outlook_version_name(std::string_view major);

/// The Outlook of this machine: whether it can be automated, which version it is, and its contacts.
class modOutlook {
 public:
  modOutlook(clsErrorHandling& errors, Automation& automation)
      : errors_(errors), automation_(automation) {}

  /// Looks for Outlook, and, when asked to, counts its contacts; a count that fails stays as it
  /// was. No Outlook is no fault; any other trouble is reported and counts as no Outlook.
  void isOutlookInstalled(bool read_count);

  /// Told before an item which one of the total is read now, so that a slow one is seen.
  using OnItem = std::function<void(std::size_t item, std::size_t total)>;
  /// Asked after each item; false stops there.
  using GoOn = std::function<bool()>;

  /// Reads every item of the contacts folder into `contacts`; items that are no contacts are
  /// counted and leave an empty record. Returns whether it came through: without Outlook, and after
  /// a fault, `contacts` stays as it was.
  [[nodiscard]] bool getContactsAll(std::vector<OutlookContact>& contacts, const OnItem& on_item,
                                    const GoOn& go_on);

  [[nodiscard]] bool installed() const { return installed_; }
  [[nodiscard]] const std::string& major_version() const { return major_version_; }
  [[nodiscard]] const std::string& version_name() const { return version_name_; }
  [[nodiscard]] std::int32_t contact_count() const { return contact_count_; }
  [[nodiscard]] std::int32_t skipped_count() const { return skipped_count_; }

 private:
  clsErrorHandling& errors_;
  Automation& automation_;
  bool installed_ = false;
  std::string major_version_;
  std::string version_name_;
  std::int32_t contact_count_ = 0;
  std::int32_t skipped_count_ = 0;
};

}  // namespace quenda
