#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quenda {

/// Messages and status texts of the main form, loaded once when the form is loaded.
struct MainTexts {
  std::string dde_exit;
  std::string dde_break;
  std::string dde_active;
  std::string selection_fail1;
  std::string selection_fail2;
  std::string selection_fail3;
  std::string outlook_search;
  std::string items_analyze;
  std::string items;
  std::string erase_multiple;
  std::string items_recycle;
  std::string items_valid;
  std::string load_book;
  std::string filter_data;
  std::string write_book;
  std::string book_has_lf;
  std::string book_line_ends;
  std::string book_line_without_end;
  std::string dde_not_connected;
  std::string refresh_info;
  std::string reading_file;
  std::string get_delimiter;
  std::string delimiter_ok;
  std::string file_read;
  std::string no_delimiter_found;
  std::string import_not_available;
  std::string header_fault;
  std::string error_free_no_warranted;
  std::string field_convert;
  std::string selection_prepare;
  std::string data_set_clean;
  std::string data_not_found;
  std::string outlook_not_inst;
  std::string items_for_import;
  std::string items_found;
  std::string contacts_found;
  std::string name;
  std::string number;
  std::string address;
};

/// A key of the language files and the text that it fills.
struct MainText {
  std::string_view key;
  std::string MainTexts::*field;
};

inline constexpr std::array kMainTexts = {
    MainText{"Import_Info_DDEexit", &MainTexts::dde_exit},
    MainText{"Import_Info_DDEbreak", &MainTexts::dde_break},
    MainText{"Import_Info_DDEactive", &MainTexts::dde_active},
    MainText{"Import_Msg_SelectionFail1", &MainTexts::selection_fail1},
    MainText{"Import_Msg_SelectionFail2", &MainTexts::selection_fail2},
    MainText{"Import_Msg_SelectionFail3", &MainTexts::selection_fail3},
    MainText{"Import_Info_OutlookSearch", &MainTexts::outlook_search},
    MainText{"Import_Info_ItemsAnalyze", &MainTexts::items_analyze},
    MainText{"Journal_Info_Items", &MainTexts::items},
    MainText{"Import_Info_EraseMultible", &MainTexts::erase_multiple},
    MainText{"Import_Info_ItemsRecycle", &MainTexts::items_recycle},
    MainText{"Import_Info_ItemsValid", &MainTexts::items_valid},
    MainText{"Import_Info_LoadBook", &MainTexts::load_book},
    MainText{"Import_Info_FilterData", &MainTexts::filter_data},
    MainText{"Import_Info_WriteBook", &MainTexts::write_book},
    MainText{"Import_Info_BookHasLf", &MainTexts::book_has_lf},
    MainText{"Import_Msg_BookLineEnds", &MainTexts::book_line_ends},
    MainText{"Import_Msg_BookLineWithoutEnd", &MainTexts::book_line_without_end},
    MainText{"Import_Msg_DDENotConnect", &MainTexts::dde_not_connected},
    MainText{"Import_Msg_RefreshInfo", &MainTexts::refresh_info},
    MainText{"Import_Info_ReadingFile", &MainTexts::reading_file},
    MainText{"Import_Info_GetDelimiter", &MainTexts::get_delimiter},
    MainText{"Import_Info_DelimiterOk", &MainTexts::delimiter_ok},
    MainText{"Import_Info_FileRead", &MainTexts::file_read},
    MainText{"Import_Info_NoDelimiterFound", &MainTexts::no_delimiter_found},
    MainText{"Import_Info_ImportNotAvailable", &MainTexts::import_not_available},
    MainText{"Import_Msg_HeaderFault", &MainTexts::header_fault},
    MainText{"Import_Msg_ErrorFreeNoWarranted", &MainTexts::error_free_no_warranted},
    MainText{"Import_Info_FieldConvert", &MainTexts::field_convert},
    MainText{"Import_Info_SelectionPrepare", &MainTexts::selection_prepare},
    MainText{"Import_Info_DataSetClean", &MainTexts::data_set_clean},
    MainText{"Import_Info_DataNotFound", &MainTexts::data_not_found},
    MainText{"Import_Info_OutlookNotInst", &MainTexts::outlook_not_inst},
    MainText{"Import_Info_ItemsForImport", &MainTexts::items_for_import},
    MainText{"Import_Info_ItemsFound", &MainTexts::items_found},
    MainText{"Import_Info_ContactsFound", &MainTexts::contacts_found},
    MainText{"String_Name", &MainTexts::name},
    MainText{"String_Number", &MainTexts::number},
    MainText{"String_Address", &MainTexts::address},
};

}  // namespace quenda
