#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/controls/form.h"
#include "platform/controls/list_view.h"
#include "platform/controls/lists.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "platform/win32/windows/events_win32.h"
#include "platform/win32/windows/form_window.h"

namespace quenda {

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
  Label label{*this, "labView"};
  PictureBox progress{*this, "PicProgress"};
  StatusBar status{*this, "StatusBar"};
};

/// The system's double-click time in the tests, in milliseconds: none has to wait for long.
inline constexpr UINT kDoubleClickTime = 100;

/// A form in a real window, and hands that work on its controls.
class FormWindowTest : public testing::Test {
 protected:
  FormWindowTest() { set_double_click_time(kDoubleClickTime); }
  ~FormWindowTest() override { set_double_click_time(before_); }

  /// Not for good: the user's own setting stays in its place.
  static void set_double_click_time(UINT milliseconds) {
    SystemParametersInfoW(SPI_SETDOUBLECLICKTIME, milliseconds, nullptr, 0);
  }
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

  UINT before_ = GetDoubleClickTime();
  MessageLoop loop_;
  MillionRows rows_;
  TestForm form_;
  Win32Events events_{loop_};
};

}  // namespace quenda
