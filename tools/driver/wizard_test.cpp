#include "tools/driver/wizard_test.h"

#include "text/text.h"

namespace quenda {
namespace {

/// What is to be read on each page and on no other.
constexpr std::string_view kOnPage[] = {u8"Datei für den Import"_de, "Spalten Name", "Namenszusatz",
                                        "Reihenfolge", "Rufnummer bereits vorhanden"};

}  // namespace

WizardTest::~WizardTest() = default;

void WizardTest::start_by_phone_book(std::string_view options) {
  phone_book_ = std::make_unique<PhoneBook>(suite_.tool(), options);
  find_window();
  EXPECT_TRUE(phone_book_->hears("ON"));
}

void WizardTest::start_alone() {
  tool_ = Process(concat("\"", suite_.tool(), "\" /i"));
  find_window();
}

void WizardTest::find_window() {
  ASSERT_TRUE(becomes([&] {
    main_ = window_titled(kMainTitle);
    return static_cast<bool>(main_);
  })) << "the tool shows no window";
  if (!tool_.running()) {
    DWORD id = 0;
    GetWindowThreadProcessId(main_.handle(), &id);
    tool_ = Process::of(id);
  }
  wait_until_active(main_);
}

void WizardTest::click_button(std::string_view caption) {
  ASSERT_TRUE(becomes([&] {
    const Window found = button(caption);
    return found && found.enabled();
  })) << caption
      << " cannot be used";
  click(button(caption));
}

bool WizardTest::on(Page page) const {
  return main_.shows(kOnPage[static_cast<std::size_t>(page)]);
}

void WizardTest::expect_page(Page page) {
  ASSERT_TRUE(becomes([&] { return on(page); })) << kOnPage[static_cast<std::size_t>(page)];
  if (page == Page::kSource) return;
  const auto done = [&] {
    return button(kBack).enabled() && (page != Page::kEntries || button(kApply));
  };
  ASSERT_TRUE(becomes(done)) << "the page's work does not end";
}

void WizardTest::type_path() {
  fill(main_.after(u8"Datei für den Import"_de), suite_.contacts());
  EXPECT_TRUE(becomes([&] { return panel_of(main_, 1) == "Importmode: CSV"; }));
}

void WizardTest::forward(Page next) {
  click_button(kNext);
  expect_page(next);
}

void WizardTest::go_to(Page page) {
  if (page == Page::kSource) return;
  type_path();
  for (int at = static_cast<int>(Page::kColumns); at <= static_cast<int>(page); ++at) {
    forward(static_cast<Page>(at));
  }
}

std::vector<std::string> WizardTest::final_entries() const {
  std::vector<std::string> entries;
  for (const TableRow& row : rows_of(final_list())) entries.push_back(concat(row[0], " ", row[1]));
  return entries;
}

void WizardTest::expect_end() { EXPECT_EQ(tool_.exit_code(), DWORD{0}); }

}  // namespace quenda
