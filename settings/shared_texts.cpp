#include "settings/shared_texts.h"

#include <array>

#include "settings/modLanguage.h"

namespace quenda {
namespace {

struct SharedText {
  TextKey key;
  std::string SharedTexts::*field;
};

constexpr std::array kSharedTexts = {
    SharedText{"Message_BackupExists", &SharedTexts::Message_BackupExists},
    SharedText{"Message_RemoveFileExtByRename", &SharedTexts::Message_RemoveFileExtByRename},
    SharedText{"Message_ConfigFileFault", &SharedTexts::Message_ConfigFileFault},
    SharedText{"Message_CreateNewFile", &SharedTexts::Message_CreateNewFile},
    SharedText{"Message_FaultFileRename", &SharedTexts::Message_FaultFileRename},
    SharedText{"Message_FaultFileDelete", &SharedTexts::Message_FaultFileDelete},
    SharedText{"Message_PleaseDeleteFile", &SharedTexts::Message_PleaseDeleteFile},
    SharedText{"Message_ReConfigTheProgram", &SharedTexts::Message_ReConfigTheProgram},
    SharedText{"Button_OK", &SharedTexts::Button_OK},
    SharedText{"Button_Cancel", &SharedTexts::Button_Cancel},
    SharedText{"Button_Resume", &SharedTexts::Button_Resume},
    SharedText{"Button_Next", &SharedTexts::Button_Next},
    SharedText{"Button_Yes", &SharedTexts::Button_Yes},
    SharedText{"Button_No", &SharedTexts::Button_No},
    SharedText{"Button_Help", &SharedTexts::Button_Help},
    SharedText{"String_Number", &SharedTexts::String_Number},
    SharedText{"String_Name", &SharedTexts::String_Name},
    SharedText{"String_Address", &SharedTexts::String_Address},
    SharedText{"String_FilesAll", &SharedTexts::String_FilesAll},
    SharedText{"String_Pictures", &SharedTexts::String_Pictures},
    SharedText{"Message_WriteFail", &SharedTexts::Message_WriteFail},
    SharedText{"Message_WriteFail1", &SharedTexts::Message_WriteFail1},
    SharedText{"Message_WriteFail2", &SharedTexts::Message_WriteFail2},
};

}  // namespace

void load_shared_texts(modLanguage& language, SharedTexts& texts) {
  for (const SharedText& entry : kSharedTexts) texts.*entry.field = language.LoadLangKey(entry.key);
}

}  // namespace quenda
