#include "settings/suite_paths.h"

#include "platform/system.h"
#include "settings/modAPI_INI.h"
#include "settings/suite_specs.h"
#include "support/procedure.h"
#include "text/conversions.h"
#include "text/fault.h"
#include "text/literal_1252.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::string_view kPathsFile = "\\Quendapaths.ini";
constexpr std::string_view kSection = "Paths";

/// A path as Windows compares it: letter case does not count, and "/" is "\".
std::string comparable(std::string_view path) { return to_lower(replace_all(path, "/", "\\")); }

}  // namespace

std::string SuitePaths::book_file() const { return concat(book_folder, "Quendabook.txt"); }

bool lies_inside(std::string_view folder, std::string_view outer) {
  return !outer.empty() && comparable(folder).find(comparable(outer)) != std::string::npos;
}

std::string choose_data_root(const DataRootChoice& choice) {
  std::string_view root = choice.setting;
  if (root.ends_with('\\')) root.remove_suffix(1);
  if (root.empty()) root = "0";
  if (root == "0") {
    root = choice.program_folder_protected ? choice.common_folder : choice.program_folder;
  } else if (is_numeric(root)) {
    root = choice.common_folder;
  }
  if (root.ends_with('\\')) root.remove_suffix(1);
  return std::string(root);
}

std::string choose_book_folder(std::string_view setting, std::string_view data_root) {
  if (setting.empty() || is_numeric(setting)) return concat(data_root, "\\data\\");
  return concat(setting, setting.ends_with('\\') ? "" : "\\");
}

bool leads_out(std::string_view path) {
  const std::string slashed = concat("\\", replace_all(path, "/", "\\"), "\\");
  return slashed.find("\\..\\") != slashed.npos;
}

bool LoadSavePaths(clsErrorHandling& errors, modAPI_INI& ini, const System& system,
                   SuitePaths& paths, SuiteSpecs& specs) {
  return procedure_with_own_report(
      errors, "suite_paths.LoadSavePaths", {},
      [&](Statement& at) {
        at(1);
        LoadSpecs(errors, ini, paths.program_folder, specs);
        at(2);
        paths.common_folder = concat(system.special_folder(kCommonApplicationData), "\\Quenda");
        DataRootChoice choice;
        choice.setting = "1";
        choice.program_folder = paths.program_folder;
        choice.common_folder = paths.common_folder;
        at(3);
        const std::string file = concat(paths.program_folder, kPathsFile);
        std::string root_setting = "1";
        std::string book_setting;
        if (ini.HasFile(file)) {
          at(4);
          paths.book_refresh = ini.GetSettBool(kSection, "BookRefresh", false, file);
          at(5);
          root_setting = ini.GetSettStr(kSection, "ProgramData", "1", file, false, false);
          choice.setting = root_setting;
          choice.program_folder_protected =
              system.protects_program_folders() &&
              lies_inside(system.long_path(paths.program_folder),
                          system.long_path(system.special_folder(kProgramFiles)));
          at(6);
          book_setting = ini.GetSettStr(kSection, "BookPath", "", file, false, false);
          for (const std::string_view setting :
               {std::string_view(root_setting), std::string_view(book_setting)}) {
            if (!leads_out(setting)) continue;
            errors.show(
                concat(file, kCrLf, setting, u8" führt aus den Ordnern der Suite hinaus."_de),
                MessageStyle::kExclamation, "");
            raise_fault(kFaultPathAccess);
          }
        } else if (ini.unreadable() == file) {
          // With the default folders in place of unknown ones, entries would go into another book.
          raise_fault(kFaultPathAccess);
        }
        at(7);
        paths.data_root = choose_data_root(choice);
        paths.book_folder = choose_book_folder(book_setting, paths.data_root);
      },
      [&](const RuntimeFault& /*fault*/, int statement) {
        errors.show(
            concat("Error in Function \"LoadSavePaths\" at Line ", std::to_string(statement)),
            MessageStyle::kCritical, "");
      });
}

}  // namespace quenda
