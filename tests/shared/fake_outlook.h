#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "sources/outlook_contacts.h"
#include "tests/shared/fakes.h"

// An Outlook in memory.
namespace quenda {

/// An item of the contacts folder; properties that are not given are empty.
inline std::shared_ptr<FakeObject> outlook_contact(
    const std::vector<std::pair<std::string, std::string>>& properties) {
  auto item = std::make_shared<FakeObject>();
  item->type = "ContactItem";
  for (const std::string_view name : kContactProperties) item->texts[std::string(name)] = "";
  for (const auto& [name, text] : properties) item->texts[name] = text;
  return item;
}

inline std::shared_ptr<FakeObject> outlook_distribution_list() {
  auto item = std::make_shared<FakeObject>();
  item->type = "DistListItem";
  return item;
}

/// Makes Outlook available; the result is the collection of its contacts.
inline std::shared_ptr<FakeObject> install_outlook(FakeAutomation& automation,
                                                   const std::string& version,
                                                   std::vector<std::shared_ptr<FakeObject>> items) {
  auto list = std::make_shared<FakeObject>();
  list->numbers["Count"] = static_cast<long>(items.size());
  list->lists["Item"] = std::move(items);
  auto folder = std::make_shared<FakeObject>();
  folder->objects["Items"] = list;
  auto name_space = std::make_shared<FakeObject>();
  name_space->lists["GetDefaultFolder"].assign(10, folder);
  auto application = std::make_shared<FakeObject>();
  application->texts["Version"] = version;
  application->objects["GetNamespace(MAPI)"] = name_space;
  automation.programs["Outlook.Application"] = application;
  return list;
}

}  // namespace quenda
