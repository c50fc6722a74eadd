#include "app/app.h"

#include "platform/system.h"
#include "support/modAPI_FileOpenDlg.h"
#include "support/modPrivateDummy.h"
#include "support/text.h"

namespace quenda {

App::App(const Services& machine)
    : services(machine),
      errors(environment, services.files, services.clock),
      ini(errors, services.files, paths),
      language(errors, services.files, services.clock, ini) {
  errors.look_up_text = [this](std::string_view key, std::string_view german) {
    return language.LoadLangKey(key, german);
  };
  errors.show_message = [this](std::string_view text, MessageStyle style, std::string_view title) {
    modPrivateDummy::MsgBoxForward(errors, services.dialogs, services.system, text, style, title);
  };
}

bool App::start() {
  environment.program_code = "IMP";
  if (services.system.previous_instance()) return false;
  paths.program_folder = services.system.program_folder();
  if (!LoadSavePaths(errors, ini, services.files, services.system, paths, specs)) return false;
  environment.main_folder = paths.data_root;
  apply_switches(specs, environment);

  language.LanguageInit("");
  load_shared_texts(language, shared_texts);
  if (services.system.command_line().find("/i") != std::string::npos) return true;
  load_shared_texts(language, shared_texts);
  message_box(
      concat(text("Import_Msg_DirectCallNotProvided"), kCrLf, text("Import_Msg_UseMenuInBook")),
      MessageStyle::kInformation);
  return false;
}

MessageAnswer App::message_box(std::string_view text, MessageStyle style) {
  return modPrivateDummy::MsgBoxForward(errors, services.dialogs, services.system, text, style, "");
}

std::string App::open_file(Form& owner, std::string_view filter_key) {
  return modAPI_FileOpenDlg::FileOpenDialog(
      errors, services.dialogs, owner, filter_key,
      {shared_texts.String_FilesAll, shared_texts.String_Pictures});
}

std::string App::version() const {
  return concat(std::to_string(environment.major), ".", std::to_string(environment.minor));
}

}  // namespace quenda
