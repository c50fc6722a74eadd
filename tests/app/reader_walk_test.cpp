#include <gmock/gmock.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <string>

#include "book/pages/fImportItemEdit.h"
#include "book/pages/fImportMsg.h"
#include "book/pages/fOVWInput.h"
#include "platform/controls/list_place.h"
#include "platform/controls/simple_controls.h"
#include "tests/shared/wizard_fixture.h"
#include "text/text.h"

// What a screen reader and the Tab key find: every control that takes input has a name and a place.
namespace quenda {
namespace {

bool takes_keys(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kButton:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
    case ControlKind::kTextBox:
    case ControlKind::kListBox:
    case ControlKind::kComboList:
    case ControlKind::kListView:
      return true;
    default:
      return false;
  }
}

/// The label that the keyboard passes right before a field names it.
std::string name_of(const ControlHost& host, const Control& control) {
  if (!control.spoken_name().empty()) return control.spoken_name();
  if (!control.caption().empty()) return control.caption();
  const Control* before = nullptr;
  for (const Control* other : host.controls()) {
    if (other->parent() != control.parent() || other->tab_index() < 0) continue;
    if (other->tab_index() >= control.tab_index()) continue;
    if (before == nullptr || other->tab_index() > before->tab_index()) before = other;
  }
  const bool label = before != nullptr && before->kind() == ControlKind::kLabel;
  return label ? before->caption() : std::string();
}

/// What is wrong with a form's controls, one text each.
std::vector<std::string> complaints(const ControlHost& host, std::string_view hidden) {
  std::vector<std::string> found;
  std::map<int, std::string> places;
  std::map<std::pair<const Control*, std::string>, std::string> names;
  for (const Control* control : host.controls()) {
    if (!takes_keys(*control) || control->name() == hidden) continue;
    const std::string id =
        concat(control->name(),
               control->index() < 0 ? "" : concat("(", std::to_string(control->index()), ")"));
    const std::string name = name_of(host, *control);
    if (name.empty()) found.push_back(id + ": no name");
    if (control->tab_index() < 0) {
      found.push_back(id + ": never reached");
    } else if (const auto [other, fresh] = places.emplace(control->tab_index(), id); !fresh) {
      found.push_back(concat(id, ": same place as ", other->second));
    }
    // A group's name tells its options apart from others.
    const auto [other, fresh] = names.emplace(std::pair(control->parent(), name), id);
    if (!fresh && !name.empty()) found.push_back(concat(id, ": same name as ", other->second));
  }
  return found;
}

/// Boxes of one parent that share ground, whatever the DPI: the screen rounds edges, not sizes.
std::vector<std::string> overlaps(const ControlHost& host) {
  std::vector<std::string> found;
  const auto shares = [](int start, int size, int other_start, int other_size) {
    return start < other_start + other_size && other_start < start + size;
  };
  const auto& controls = host.controls();
  for (auto at = controls.begin(); at != controls.end(); ++at) {
    for (auto other = std::next(at); other != controls.end(); ++other) {
      if ((*at)->parent() != (*other)->parent()) continue;
      if (!(*at)->visible() || !(*other)->visible()) continue;
      const Place& a = (*at)->place();
      const Place& b = (*other)->place();
      if (shares(a.left, a.width, b.left, b.width) && shares(a.top, a.height, b.top, b.height)) {
        found.push_back(concat((*at)->name(), " and ", (*other)->name()));
      }
    }
  }
  return found;
}

class ReaderWalk : public WizardTest {};

TEST_F(ReaderWalk, NothingLiesOnSomethingElse) {
  start();
  EXPECT_THAT(overlaps(fImportItemEdit(*app)), testing::IsEmpty());
  EXPECT_THAT(overlaps(fImportMsg(*app)), testing::IsEmpty());
  EXPECT_THAT(overlaps(fOVWInput(*app)), testing::IsEmpty());
  for (int page = 0; page < 4; ++page) {
    EXPECT_THAT(overlaps(*form), testing::IsEmpty()) << "page " << page;
    if (page == 0) take_file("Name;Telefon;Mobil;Strasse\r\nBerg;030123456;0171222333;Weg 1\r\n");
    forward();
    if (page != 0) continue;
    select(0, {"Name"});
    select(1, {"Telefon", "Mobil"});
    select(2, {"Strasse"});
  }
}

TEST_F(ReaderWalk, EveryControlHasANameOfItsOwnAndAPlace) {
  start();
  take_file("Name;Telefon;Mobil;Strasse\r\nBerg;030123456;0171222333;Weg 1\r\n");
  forward();
  select(0, {"Name"});
  select(1, {"Telefon", "Mobil"});
  select(2, {"Strasse"});
  forward();
  forward();
  EXPECT_THAT(complaints(*form, "txtDDE"), testing::IsEmpty());
  EXPECT_THAT(complaints(fImportItemEdit(*app), ""), testing::IsEmpty());
  EXPECT_THAT(complaints(fImportMsg(*app), ""), testing::IsEmpty());
  EXPECT_THAT(complaints(fOVWInput(*app), ""), testing::IsEmpty());
}

TEST(ListPlace, CountsTheRowsAsTheyAreSeen) {
  Form form("fTest");
  ListView list(form, "lstTest");
  list.set_columns({{"Name"}});
  list.set_sortable(true);
  for (const std::string_view name : {"Anna", "Berta", "Cem"}) list.add_row({name});
  const auto said = [&] {
    const ListPlace place = list_place(list).value();
    return row_in_words("Zeile %1 von %2", place.row, place.rows);
  };
  EXPECT_EQ(said(), "") << "none is chosen";
  list.select(0);
  EXPECT_EQ(said(), "Zeile 1 von 3");
  list.take_user_heading(0);
  list.take_user_heading(0);
  EXPECT_EQ(said(), "Zeile 3 von 3") << "sorted downwards";
}

}  // namespace
}  // namespace quenda
