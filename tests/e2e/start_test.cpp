// The ways in which the tool does not start.
#include <gmock/gmock.h>

#include "text/text.h"
#include "tools/driver/wizard_test.h"

namespace quenda {
namespace {

using testing::IsEmpty;

class Start : public WizardTest {
 protected:
  [[nodiscard]] std::string command(std::string_view words) const {
    return concat("\"", suite_.tool(), "\" ", words);
  }
};

TEST_F(Start, WithoutTheSwitchTheUserIsToldWhereTheImportIs) {
  for (const std::string_view words : {"", "/I"}) {
    SCOPED_TRACE(words);
    tool_ = Process(command(words));
    Window box;
    ASSERT_TRUE(becomes([&] { return static_cast<bool>(box = window_titled(kMainTitle)); }));
    wait_until_active(box);
    EXPECT_EQ(message_of(box),
              u8"Ein Direktaufruf dieses Tools ist nicht vorgesehen!\r\n"
              u8"Der Aufruf erfolgt über den Menüeintrag \"Import\" im Quenda-Telefonbuch!"_de);
    confirm(box);
    expect_end();
    EXPECT_THAT(suite_.read("data\\sett_import.ini"), IsEmpty());
  }
}

TEST_F(Start, ASecondInstanceEndsSilently) {
  start_alone();
  const Process second(command("/i"));
  EXPECT_EQ(second.exit_code(), DWORD{0});
  EXPECT_THAT(windows_of(second.id()), IsEmpty());
  EXPECT_TRUE(main_.visible());
}

}  // namespace
}  // namespace quenda
