// Forms in real windows: what the user does reaches the controls, what code does reaches the
// window, and nothing comes back as an echo.
#include "platform/win32/form_window.h"

#include <gtest/gtest.h>

#include "platform/control_array.h"
#include "platform/list_view.h"
#include "platform/lists.h"
#include "platform/simple_controls.h"
#include "platform/text_box.h"
#include "platform/win32/events_win32.h"
#include "platform/win32/text_win32.h"
#include "support/fault.h"

namespace quenda {
namespace {

class MillionRows : public RowSource {
 public:
  [[nodiscard]] std::size_t rows() const override { return 1'000'000; }
  [[nodiscard]] std::string cell(std::size_t row, std::size_t column) const override {
    return std::to_string(row) + "/" + std::to_string(column);
  }
};

class TestForm : public Form {
 public:
  TestForm() : Form("fTest") {
    set_place({600, 600, 6000, 3000});
    int tab = 0;
    for (Control* control : controls()) {
      control->set_place({0, 300 * tab, 1500, 300});
      control->set_tab_index(tab++);
    }
    box.set_parent(&page);
    default_button = &go;
    cancel_button = &stop;
  }

  Frame page{*this, "frmPage"};
  CheckBox box{*this, "chkBox"};
  TextBox text{*this, "txtText"};
  ListBox list{*this, "lstList"};
  ListView view{*this, "lstView"};
  Button go{*this, "cmdGo"};
  Button stop{*this, "cmdStop"};
  Timer timer{*this, "tmTimer"};
};

class FormWindowTest : public testing::Test {
 protected:
  void show() {
    events_.show(form_);
    loop_.pump();
  }
  static HWND window(const Control& control) {
    return static_cast<NativeControl*>(control.peer())->window();
  }
  static LRESULT send(const Control& control, UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
    return SendMessageW(window(control), message, wparam, lparam);
  }
  void user_types(std::wstring_view keys) {
    for (const wchar_t key : keys) send(form_.text, WM_CHAR, key);
  }

  MessageLoop loop_;
  MillionRows rows_;
  TestForm form_;
  Win32Events events_{loop_};
};

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
}

TEST_F(FormWindowTest, PastedTextIsShownAsTheToolTookIt) {
  show();
  const std::wstring pasted = L"\u0141 1; 2";
  send(form_.text, EM_REPLACESEL, FALSE, as_lparam(pasted.c_str()));
  loop_.pump();
  EXPECT_EQ(form_.text.text(), "L 1; 2") << "the key filter is for keys";
  EXPECT_EQ(window_text(window(form_.text)), L"L 1; 2");
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

TEST_F(FormWindowTest, TheEndOfTheProgramPassesThroughNestedWork) {
  form_.go.on_click = [&] {
    PostMessageW(window(form_.stop), BM_CLICK, 0, 0);
    loop_.pump();
    ADD_FAILURE() << "work went on after the end";
  };
  form_.stop.on_click = [] { throw EndProgram{}; };
  show();
  PostMessageW(window(form_.go), BM_CLICK, 0, 0);
  EXPECT_THROW(loop_.pump(), EndProgram);
}

TEST_F(FormWindowTest, LongWorkIsStoppedByEscapeThoughTheFocusedButtonIsDisabled) {
  bool stopped = false;
  form_.stop.on_click = [&] { stopped = true; };
  form_.go.on_click = [&] {
    form_.go.set_enabled(false);
    loop_.pump();
    EXPECT_EQ(GetFocus(), window(form_.stop));
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
    loop_.pump();
    form_.go.set_enabled(true);
  };
  show();
  SetFocus(window(form_.go));
  send(form_.go, BM_CLICK);
  EXPECT_TRUE(stopped);
}

TEST_F(FormWindowTest, ADialogLocksItsOwnerAndFreesItWhateverEndsIt) {
  show();
  const HWND owner = window_of(form_);
  for (const bool by_end : {false, true}) {
    TestForm dialog;
    dialog.timer.set_interval(10);
    dialog.timer.on_timer = [&] {
      EXPECT_FALSE(IsWindowEnabled(owner));
      SendMessageW(owner, WM_CLOSE, 0, 0);
      EXPECT_TRUE(form_.loaded()) << "a window under a dialog stays open";
      if (by_end) throw EndProgram{};
      dialog.unload();
    };
    dialog.timer.set_enabled(true);
    if (by_end) {
      EXPECT_THROW(events_.show_modal(dialog, form_), EndProgram);
    } else {
      events_.show_modal(dialog, form_);
    }
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(dialog.text.peer(), nullptr);
  }
}

/// A number that grows when drawing objects are left behind.
DWORD drawing_objects() {
  const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  if (count != 0) return count;
  // A system that does not count gives out the lowest free handle.
  const Brush probe(CreateSolidBrush(RGB(1, 2, 3)));
  return LOWORD(as_lparam(probe.get()));
}

TEST_F(FormWindowTest, DialogsLeaveNothingBehind) {
  show();
  const auto open_and_close = [&](int times) {
    for (int i = 0; i < times; ++i) {
      TestForm dialog;
      dialog.timer.set_interval(1);
      dialog.timer.on_timer = [&] { dialog.unload(); };
      dialog.timer.set_enabled(true);
      events_.show_modal(dialog, form_);
    }
  };
  open_and_close(3);
  const DWORD before = drawing_objects();
  open_and_close(30);
  EXPECT_LE(drawing_objects(), before + 4);
}

}  // namespace
}  // namespace quenda
