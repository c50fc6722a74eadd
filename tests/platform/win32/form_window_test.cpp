// What the user does reaches the controls, what code does reaches the window, and nothing comes
// back as an echo.
#include "platform/win32/windows/form_window.h"

#include <gtest/gtest.h>
#include <shlobj.h>

#include <algorithm>
#include <vector>

#include "platform/win32/text_win32.h"
#include "tests/platform/win32/form_fixture.h"

namespace quenda {
namespace {

TEST_F(FormWindowTest, TypedKeysPassTheFilterAndForeignOnesAreSwallowed) {
  form_.text.on_key_press = [](std::int16_t& code) {
    if (code == ';') code = ',';
    if (code == 'x') code = 0;
  };
  show();
  user_types(L"ax;\u20AC\u0141b");
  EXPECT_EQ(form_.text.text(),
            "a,\x80"
            "b");
  EXPECT_EQ(window_text(window(form_.text)), L"a,\u20ACb");
  user_types(L"\b");
  EXPECT_EQ(form_.text.text(), "a,\x80");
  std::vector<int> filtered;
  form_.text.on_key_press = [&](std::int16_t& code) { filtered.push_back(code); };
  user_types(L"\x03\r\x1A\x1B");
  EXPECT_EQ(filtered, (std::vector{13, 27})) << "copying and undoing are not typing";
}

TEST_F(FormWindowTest, PastedTextIsShownAsTheToolTookIt) {
  show();
  const std::wstring pasted = L"\u0141 1; 2";
  send(form_.text, EM_REPLACESEL, FALSE, as_lparam(pasted.c_str()));
  loop_.pump();
  EXPECT_EQ(form_.text.text(), "L 1; 2") << "the key filter is for keys";
  EXPECT_EQ(window_text(window(form_.text)), L"L 1; 2");
}

TEST_F(FormWindowTest, AHiddenControlGetsItsWindowWhenItIsShownAtItsPlaceInTheTabOrder) {
  form_.list.set_items({"Vorname"});
  form_.list.set_visible(false);
  show();
  EXPECT_EQ(window(form_.list), nullptr);
  form_.list.set_visible(true);
  loop_.pump();
  ASSERT_NE(window(form_.list), nullptr);
  EXPECT_EQ(GetWindow(window(form_.list), GW_HWNDPREV), window(form_.text));
  EXPECT_EQ(GetWindow(window(form_.list), GW_HWNDNEXT), window(form_.view));
  EXPECT_EQ(send(form_.list, LB_GETCOUNT), 1);
}

TEST_F(FormWindowTest, AMainWindowIsGoneBeforeItsLastWorkIsDone) {
  bool seen = true;
  form_.on_unload = [&] { seen = IsWindowVisible(window_of(form_)) != 0; };
  show();
  form_.unload();
  EXPECT_FALSE(seen);
}

TEST_F(FormWindowTest, ATextSetByCodeRaisesChangeOnce) {
  int changes = 0;
  form_.text.on_change = [&] { ++changes; };
  show();
  form_.text.set_text("neu");
  loop_.pump();
  EXPECT_EQ(window_text(window(form_.text)), L"neu");
  EXPECT_EQ(changes, 1);
}

TEST_F(FormWindowTest, ASelectionThatTheFormTakesBackIsTakenBackOnTheScreen) {
  form_.list.set_items({"Vorname", "Nachname", "Firma"});
  form_.list.on_click = [&] {
    if (form_.list.selected_count() > 1) form_.list.set_selected(form_.list.list_index(), false);
  };
  show();
  for (const int row : {0, 2}) {
    send(form_.list, LB_SETSEL, TRUE, row);
    SendMessageW(GetParent(window(form_.list)), WM_COMMAND,
                 MAKEWPARAM(GetDlgCtrlID(window(form_.list)), LBN_SELCHANGE),
                 as_lparam(window(form_.list)));
  }
  EXPECT_EQ(form_.list.selected_positions(), std::vector<int>{0});
  EXPECT_GT(send(form_.list, LB_GETSEL, 0), 0);
  EXPECT_EQ(send(form_.list, LB_GETSEL, 2), 0);
}

TEST_F(FormWindowTest, AClickInADisabledFrameChangesNothing) {
  show();
  send(form_.box, BM_CLICK);
  EXPECT_TRUE(form_.box.ticked());
  EXPECT_EQ(send(form_.box, BM_GETCHECK), BST_CHECKED);
  form_.page.set_enabled(false);
  send(form_.box, BM_CLICK);
  EXPECT_TRUE(form_.box.ticked());
}

TEST_F(FormWindowTest, AMillionRowsAreThereAtOnceAndChosenColumnsAreMarked) {
  form_.view.set_columns({{"Vorname"}, {"Telefon", 1440, ColumnKind::kNumber}});
  form_.view.set_source(&rows_);
  show();
  EXPECT_EQ(send(form_.view, LVM_GETITEMCOUNT), 1'000'000);
  wchar_t cell[40] = {};
  LVITEMW item{};
  item.iSubItem = 1;
  item.pszText = cell;
  item.cchTextMax = 40;
  send(form_.view, LVM_GETITEMTEXTW, 999'999, as_lparam(&item));
  EXPECT_STREQ(cell, L"999999/1");
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = cell;
  column.cchTextMax = 40;
  send(form_.view, LVM_GETCOLUMNW, 1, as_lparam(&column));
  EXPECT_STREQ(cell, L"[#] Telefon");
}

TEST_F(FormWindowTest, ColumnsShareTheRoomOfAListButStayAsWideAsAskedFor) {
  form_.set_resizable(true);
  form_.view.set_anchors(Anchor::kBoth, Anchor::kStart);
  form_.view.set_columns({{"Name", 500}, {"Nummer", 1000}});
  show();
  const auto width = [&](WPARAM column) {
    return static_cast<int>(send(form_.view, LVM_GETCOLUMNWIDTH, column));
  };
  EXPECT_EQ(width(0), 33);
  RECT place{};
  GetWindowRect(window_of(form_), &place);
  SetWindowPos(window_of(form_), nullptr, 0, 0, place.right - place.left + 300,
               place.bottom - place.top, SWP_NOMOVE | SWP_NOZORDER);
  loop_.pump();
  RECT area{};
  GetClientRect(window(form_.view), &area);
  EXPECT_NEAR(width(0) + width(1), area.right, 25);
  EXPECT_NEAR(width(1), 2 * width(0), 6);
}

TEST_F(FormWindowTest, ColumnsOfAListThatDoesNotScrollFillIt) {
  form_.view.set_columns({{"Name", 500}, {"Nummer", 500}});
  form_.view.add_row({"Anna", "030"});
  show();
  RECT area{};
  GetClientRect(window(form_.view), &area);
  EXPECT_EQ(send(form_.view, LVM_GETCOLUMNWIDTH, 0) + send(form_.view, LVM_GETCOLUMNWIDTH, 1),
            area.right);
}

TEST_F(FormWindowTest, ABorderFitsItsColumnToAMillionRowsAtOnceAndItStaysSo) {
  form_.view.set_columns({{"Name", 500}, {"Nummer", 200}, {"Ort", 300}});
  form_.view.set_place({0, 0, 6000, 900});
  form_.view.set_source(&rows_);
  show();
  const auto width = [&](WPARAM column) {
    return static_cast<int>(send(form_.view, LVM_GETCOLUMNWIDTH, column));
  };
  const auto tell = [&](UINT code, int column, int pixels) {
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.cxy = pixels;
    NMHEADERW notice{};
    notice.hdr = {from_lparam<HWND__>(send(form_.view, LVM_GETHEADER)), 0, code};
    notice.iItem = column;
    notice.pitem = &item;
    send(form_.view, WM_NOTIFY, 0, as_lparam(&notice));
    // What the heading does after it has told of a border that was dragged.
    if (pixels > 0) send(form_.view, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), pixels);
    loop_.pump();
  };
  const int all = width(0) + width(1) + width(2);
  const int first = width(0);
  const ULONGLONG begin = GetTickCount64();
  tell(HDN_DIVIDERDBLCLICKW, 1, 0);
  EXPECT_LT(GetTickCount64() - begin, 1000U);
  const int fitted = width(1);
  EXPECT_GT(fitted,
            static_cast<int>(send(form_.view, LVM_GETSTRINGWIDTHW, 0, as_lparam(L"999750/1"))));
  EXPECT_LT(fitted, 120);
  EXPECT_EQ(width(0), first);
  EXPECT_EQ(width(0) + width(1) + width(2), all) << "the list stays filled";
  form_.view.set_column_kinds({ColumnKind::kName});
  form_.view.source_changed();
  loop_.pump();
  EXPECT_EQ(width(1), fitted);
  tell(HDN_ENDTRACKW, 0, 30);
  EXPECT_EQ(width(0) + width(1) + width(2), all);
  EXPECT_EQ(width(1), fitted);
  form_.view.set_columns({{"Name", 500}, {"Datum", 500}});
  loop_.pump();
  EXPECT_EQ(width(0), width(1)) << "a choice is about the columns that were seen";
}

TEST_F(FormWindowTest, AHeadingSortsWhatIsSeenAndTheRowsStay) {
  form_.view.set_sortable(true);
  form_.view.set_columns({{"Name", 500}, {"Nummer", 500}});
  for (const char* name : {"Zorn", "\xC4rmel", "berg", "Anna"}) form_.view.add_row({name, "0"});
  show();
  const auto click_heading = [&] {
    NMLISTVIEW notice{};
    notice.hdr = {window(form_.view), 0, static_cast<UINT>(LVN_COLUMNCLICK)};
    SendMessageW(GetParent(window(form_.view)), WM_NOTIFY, 0, as_lparam(&notice));
    loop_.pump();
  };
  const auto seen = [&] {
    std::string names;
    for (WPARAM at = 0; at < form_.view.count(); ++at) {
      wchar_t cell[40] = {};
      LVITEMW item{};
      item.pszText = cell;
      item.cchTextMax = 40;
      send(form_.view, LVM_GETITEMTEXTW, at, as_lparam(&item));
      names += nearest_1252(cell) + " ";
    }
    return names;
  };
  form_.view.select(2);
  click_heading();
  EXPECT_EQ(seen(), "Anna \xC4rmel berg Zorn ");
  EXPECT_EQ(send(form_.view, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 2);
  EXPECT_EQ(form_.view.cell(0, 0), "Zorn");
  click_heading();
  EXPECT_EQ(seen(), "Zorn berg \xC4rmel Anna ");
  form_.view.remove_row(2);
  loop_.pump();
  EXPECT_EQ(seen(), "Zorn \xC4rmel Anna ");
  click_heading();
  EXPECT_EQ(seen(), "Zorn \xC4rmel Anna ");
}

TEST_F(FormWindowTest, TheTitleTellsTheProgressWhileTheWindowIsMinimised) {
  form_.set_caption("Quenda - Import");
  form_.set_resizable(true);
  show();
  const HWND main = window_of(form_);
  form_.progress.set_percent(37);
  loop_.pump();
  EXPECT_EQ(window_text(main), L"Quenda - Import");
  ShowWindow(main, SW_MINIMIZE);
  EXPECT_EQ(window_text(main), L"37 % - Quenda - Import");
  form_.progress.set_percent(38);
  loop_.pump();
  EXPECT_EQ(window_text(main), L"38 % - Quenda - Import");
  ShowWindow(main, SW_RESTORE);
  EXPECT_EQ(window_text(main), L"Quenda - Import");
}

/// An empty path drops nothing at all.
void drop(HWND window, const std::wstring& path) {
  const std::size_t size = sizeof(DROPFILES) + (path.size() + 2) * sizeof(wchar_t);
  const HGLOBAL memory = GlobalAlloc(GHND, size);
  auto* const head = static_cast<DROPFILES*>(GlobalLock(memory));
  head->pFiles = sizeof(DROPFILES);
  head->fWide = TRUE;
  std::copy(path.begin(), path.end(), from_lparam<wchar_t>(as_lparam(head + 1)));
  GlobalUnlock(memory);
  SendMessageW(window, WM_DROPFILES, static_cast<WPARAM>(as_lparam(memory)), 0);
}

TEST_F(FormWindowTest, ADroppedFileIsNamedOrRefusedAsUnusable) {
  std::string dropped;
  std::string unusable;
  form_.on_drop_file = [&](std::string_view path) { dropped = path; };
  form_.on_unusable_path = [&](std::string_view nearest) { unusable = nearest; };
  show();
  drop(window_of(form_), L"C:\\Gr\u00FC\u00DFe.csv");
  EXPECT_EQ(dropped,
            "C:\\Gr\xFC\xDF"
            "e.csv");
  EXPECT_EQ(unusable, "");
  drop(window_of(form_), L"C:\\\u65E5.csv");
  EXPECT_EQ(unusable, "C:\\?.csv");
}

TEST_F(FormWindowTest, NothingIsTakenFromAnEmptyDropOrBelowADialog) {
  int dropped = 0;
  int clicks = 0;
  form_.on_drop_file = [&](std::string_view) { ++dropped; };
  form_.go.on_click = [&] { ++clicks; };
  show();
  drop(window_of(form_), L"");
  EnableWindow(window_of(form_), FALSE);
  drop(window_of(form_), L"C:\\kontakte.csv");
  send(form_.go, BM_CLICK);
  EXPECT_EQ(dropped, 0);
  EXPECT_EQ(clicks, 0);
  EnableWindow(window_of(form_), TRUE);
  drop(window_of(form_), L"C:\\kontakte.csv");
  EXPECT_EQ(dropped, 1);
}

}  // namespace
}  // namespace quenda
