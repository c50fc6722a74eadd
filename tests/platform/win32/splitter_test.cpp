// The border between lists and preview under the hands of a user.
#include "platform/controls/splitter.h"

#include <gtest/gtest.h>
#include <oleacc.h>

#include "platform/win32/com/com_values.h"
#include "platform/win32/controls/splitter_peer.h"
#include "tests/platform/win32/form_fixture.h"

namespace quenda {
namespace {

class SplitterTest : public FormWindowTest {
 protected:
  SplitterTest() {
    border_.set_place({0, 1500, 6000, 90});
    border_.set_parent(&whole_);
    border_.set_anchors(Anchor::kBoth, Anchor::kShareStart);
    border_.set_least(300, 600);
    border_.set_spoken_name("Grenze");
    border_.set_tab_index(50);
    whole_.set_place({0, 0, 6000, 3000});
    form_.list.set_parent(&whole_);
    form_.list.set_place({0, 0, 1500, 1500});
    form_.list.set_anchors(Anchor::kStart, Anchor::kShare);
  }

  [[nodiscard]] int list_height() const {
    RECT area{};
    GetWindowRect(window(form_.list), &area);
    return static_cast<int>(area.bottom - area.top);
  }
  void mouse(UINT message, int y) { send(border_, message, MK_LBUTTON, MAKELPARAM(10, y)); }
  void key(WPARAM key) { send(border_, WM_KEYDOWN, key); }

  Frame whole_{form_, "whole"};
  Splitter border_{form_, "border"};
};

TEST_F(SplitterTest, TheMouseTakesItAlongAndEscapePutsItBack) {
  show();
  ASSERT_EQ(list_height(), 100);
  mouse(WM_LBUTTONDOWN, 2);
  mouse(WM_MOUSEMOVE, 32);
  EXPECT_EQ(list_height(), 130);
  mouse(WM_MOUSEMOVE, -18);
  EXPECT_EQ(list_height(), 110) << "counted from where it lies now";
  mouse(WM_LBUTTONUP, 2);
  EXPECT_EQ(list_height(), 110);
  mouse(WM_LBUTTONDOWN, 2);
  mouse(WM_MOUSEMOVE, 500);
  EXPECT_EQ(list_height(), 160) << "as far as the other side allows";
  MSG escape{};
  escape.message = WM_KEYDOWN;
  escape.wParam = VK_ESCAPE;
  EXPECT_TRUE(lets_go_of_border(escape));
  EXPECT_EQ(list_height(), 110);
  EXPECT_FALSE(lets_go_of_border(escape)) << "the next one is the form's";
  mouse(WM_LBUTTONDBLCLK, 2);
  EXPECT_EQ(list_height(), 100);
  EXPECT_EQ(border_.share(), 0);
}

TEST_F(SplitterTest, KeysMoveItAndAReaderHearsWhatItIs) {
  show();
  key(VK_DOWN);
  EXPECT_EQ(list_height(), 110);
  key(VK_PRIOR);
  EXPECT_EQ(list_height(), 60);
  key(VK_HOME);
  EXPECT_EQ(list_height(), 20);
  const ApartmentScope apartment;
  ComPtr<IAccessible> object;
  AccessibleObjectFromWindow(window(border_), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                             object.out_void());
  ASSERT_TRUE(object);
  Variant self(long{CHILDID_SELF});
  Variant role;
  Bstr name;
  Bstr value;
  object->get_accRole(*self.get(), role.get());
  object->get_accName(*self.get(), name.out());
  object->get_accValue(*self.get(), value.out());
  EXPECT_EQ(role.number(), ROLE_SYSTEM_SEPARATOR);
  EXPECT_EQ(name.text(), "Grenze");
  EXPECT_EQ(value.text(), "10 %");
  EXPECT_NE(send(border_, WM_GETDLGCODE) & DLGC_WANTARROWS, 0);
}

}  // namespace
}  // namespace quenda
