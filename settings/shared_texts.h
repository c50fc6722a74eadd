#pragma once

#include <string>

namespace quenda {

class modLanguage;

/// Texts that all programs of the suite share, loaded as a whole. This program shows "Weiter",
/// "Übernehmen" and the names of the file filters; the others are shown by other programs.
struct SharedTexts {
  std::string Message_BackupExists;
  std::string Message_RemoveFileExtByRename;
  std::string Message_ConfigFileFault;
  std::string Message_CreateNewFile;
  std::string Message_FaultFileRename;
  std::string Message_FaultFileDelete;
  std::string Message_PleaseDeleteFile;
  std::string Message_ReConfigTheProgram;
  std::string Button_OK;
  std::string Button_Cancel;
  std::string Button_Resume;
  std::string Button_Next;
  std::string Button_Yes;
  std::string Button_No;
  std::string Button_Help;
  std::string String_Number;
  std::string String_Name;
  std::string String_Address;
  std::string String_FilesAll;
  std::string String_Pictures;
  std::string Message_WriteFail;
  std::string Message_WriteFail1;
  std::string Message_WriteFail2;
};

void load_shared_texts(modLanguage& language, SharedTexts& texts);

}  // namespace quenda
