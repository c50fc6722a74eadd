#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "settings/ini/language_keys.h"

namespace quenda {

class modLanguage;

/// Messages and status texts of the wizard.
inline constexpr std::array<TextKey, 46> kMainTexts = {
    "Import_Info_DDEexit",
    "Import_Info_DDEbreak",
    "Import_Info_DDEactive",
    "Import_Msg_SelectionFail1",
    "Import_Msg_SelectionFail2",
    "Import_Msg_SelectionFail3",
    "Import_Info_OutlookSearch",
    "Import_Info_ItemsAnalyze",
    "Journal_Info_Items",
    "Import_Info_EraseMultible",
    "Import_Info_ItemsRecycle",
    "Import_Info_ItemsValid",
    "Import_Info_LoadBook",
    "Import_Info_FilterData",
    "Import_Info_WriteBook",
    "Import_Info_BookHasLf",
    "Import_Msg_BookLineEnds",
    "Import_Msg_BookLineWithoutEnd",
    "Import_Msg_BookChanged",
    "Import_Msg_BookUnchanged",
    "Import_Msg_BookLonger",
    "Import_Msg_BookDamaged",
    "Import_Msg_BookRestAtEnd",
    "Import_Msg_BookTooLarge",
    "Import_File_TooLarge",
    "Import_Msg_DDENotConnect",
    "Import_Msg_RefreshInfo",
    "Import_Info_ReadingFile",
    "Import_Info_GetDelimiter",
    "Import_Info_DelimiterOk",
    "Import_Info_FileRead",
    "Import_Info_NoDelimiterFound",
    "Import_Info_ImportNotAvailable",
    "Import_Msg_HeaderFault",
    "Import_Msg_ErrorFreeNoWarranted",
    "Import_Info_FieldConvert",
    "Import_Info_SelectionPrepare",
    "Import_Info_DataSetClean",
    "Import_Info_DataNotFound",
    "Import_Info_OutlookNotInst",
    "Import_Info_ItemsForImport",
    "Import_Info_ItemsFound",  // loaded with the others, shown nowhere
    "Import_Info_ContactsFound",
    "String_Name",
    "String_Number",
    "String_Address",
};

/// One of those texts; a key that is not among them does not compile.
class MainText {
 public:
  consteval MainText(const char* key) {
    while (kMainTexts.at(index_).key() != std::string_view(key)) ++index_;
  }
  [[nodiscard]] constexpr std::size_t index() const { return index_; }

 private:
  std::size_t index_ = 0;
};

/// The texts in the user's language, loaded once when the form is loaded: `texts["String_Name"]`.
class MainTexts {
 public:
  void load(modLanguage& language);
  const std::string& operator[](MainText text) const { return texts_[text.index()]; }

 private:
  std::array<std::string, kMainTexts.size()> texts_;
};

}  // namespace quenda
