#include "platform/win32/windows/access_keys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

#include "platform/controls/form.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_box.h"
#include "platform/win32/windows/form_window.h"
#include "tests/shared/wizard_fixture.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

using testing::ElementsAre;

TEST(AccessKeys, EachLetterIsGivenOnceAndBeginningsOfWordsFirst) {
  EXPECT_THAT(with_access_keys({"Weiter", "Datei", "Datei w\xE4hlen", "Abc", "Ab"}),
              ElementsAre("&Weiter", "&Datei", "Da&tei w\xE4hlen", "A&bc", "&Ab"));
}

TEST(AccessKeys, ACaptionWithoutAFreeLetterGetsOneThatAnotherCanSpare) {
  EXPECT_THAT(with_access_keys({"Abc", "Ab", "Ba"}), ElementsAre("Ab&c", "&Ab", "&Ba"));
  EXPECT_THAT(with_access_keys({"Abc", "Ab", "Ba"}, 1), ElementsAre("&Abc", "A&b", "Ba"))
      << "the buttons of the form keep theirs";
}

TEST(AccessKeys, LettersThatACaptionBringsAlongAreKeptForIt) {
  EXPECT_THAT(with_access_keys({"Weiter", "Ab&weisen", "Fisch && Co"}),
              ElementsAre("W&eiter", "Ab&weisen", "&Fisch && Co"));
}

TEST(AccessKeys, UmlautsCountWithoutRegardToCaseAndSignsNeverDo) {
  constexpr std::string_view german = u8"Übernehmen"_de;
  const std::string accept(german);
  EXPECT_THAT(with_access_keys({accept, "1", "2 4"}), ElementsAre("&" + accept, "1", "2 4"));
  EXPECT_THAT(with_access_keys({"\xDC-", "\xFC-"}), ElementsAre("&\xDC-", "\xFC-"));
}

TEST(AccessKeys, CaptionsThatRepeatTakeWhatTheOthersLeave) {
  EXPECT_THAT(with_access_keys({"Adr", "Adr", "Ad", "Ra"}),
              ElementsAre("A&dr", "Adr", "&Ad", "&Ra"));
}

TEST_F(WizardTest, EveryButtonOfAPageHasAnAltLetterOfItsOwnInBothLanguages) {
  std::ifstream english(QUENDA_SOURCE_DIR "/base/language_en.ini", std::ios::binary);
  machine.files.put("C:\\Quenda\\base\\language_en.ini",
                    std::string(std::istreambuf_iterator(english), {}));
  MessageLoop loop;
  for (const std::string language : {"", "en"}) {
    machine.files.put("C:\\Quenda\\data\\Quenda.ini", "[General]\r\nLanguage=" + language + "\r\n");
    start();
    FormWindow window(loop, *form, nullptr);
    EXPECT_EQ(form->cmdFor.caption(), language.empty() ? "Weiter" : "Next");
    for (std::int16_t page = 0; page <= 4; ++page) {
      SCOPED_TRACE(language + std::to_string(page));
      form->wizard.CurrentPage = static_cast<Page>(page);
      form->ShowSite();
      window.show_changes();
      std::set<char> taken;
      for (const Control* control : keyed_controls(*form)) {
        const std::string caption = window.captions().of(*control);
        const auto mark = caption.find('&');
        if (mark != caption.npos) {
          EXPECT_TRUE(taken.insert(to_lower(caption[mark + 1])).second) << caption;
        } else {
          EXPECT_NE(control->kind(), ControlKind::kButton) << caption;
        }
      }
      EXPECT_GE(taken.size(), 4U);
    }
  }
}

TEST(AccessKeys, ButtonsOfTheFormComeFirstAndHiddenPagesNotAtAll) {
  Form form("fTest");
  Frame page(form, "page");
  Frame hidden(form, "hidden");
  Label name(form, "labName");
  TextBox field(form, "txtName");
  Label remark(form, "labRemark");
  Button other(form, "cmdOther");
  Button forward(form, "cmdFor");
  int tab = 0;
  for (Control* control : form.controls()) control->set_tab_index(tab++);
  for (Control* control : {static_cast<Control*>(&name), static_cast<Control*>(&field),
                           static_cast<Control*>(&remark)}) {
    control->set_parent(&page);
  }
  other.set_parent(&hidden);
  hidden.set_visible(false);
  EXPECT_THAT(keyed_controls(form), ElementsAre(&forward, &name));
}

}  // namespace
}  // namespace quenda
