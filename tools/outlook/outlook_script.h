#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32/windows_headers.h"

// What the stand-in for Outlook has and how it behaves, read from a small text file (UTF-8), one
// `key=value` a line.
namespace quenda {

/// What an object tells of its type: the interface's name ("_ContactItem"), its class's name, or
/// nothing but the number in `Class`, which tells contacts from others.
enum class TypeNews { kInterface, kClass, kNothing };

/// One item of the contacts folder.
struct ScriptedItem {
  bool contact = true;
  std::map<std::wstring, std::wstring> properties;
};

struct OutlookScript {
  std::wstring version = L"16.0.4266.1001";
  std::vector<ScriptedItem> items;
  TypeNews types = TypeNews::kInterface;
  bool refuses = false;       // no object can be created
  std::size_t leaves = 0;     // so many creations find the program about to end or busy, in turn
  std::size_t busy_from = 0;  // the item, from 1, after which every call is rejected for a while
  DWORD busy_for = 0;         // milliseconds
  DWORD starts_after = 0;     // milliseconds that the program takes to start
  std::size_t hangs_at = 0;   // the item, from 1, that the program never gives
  std::size_t dies_at = 0;    // the item, from 1, instead of which the program ends
  std::wstring missing;       // a property that contacts do not have
  std::string report;         // file that is told how it went
};

/// Keys: version, types (interface, class, nothing), refuses, leaves, busy_from, busy_for,
/// starts_after, hangs_at, dies_at, missing, report; `contacts=N` adds N made-up contacts, `list=`
/// a distribution list, `contact=` one contact with its properties as "Name=text|Name=text". "\n"
/// in a text is a line break.
OutlookScript read_outlook_script(std::string_view text);

}  // namespace quenda
