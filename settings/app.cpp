#include "settings/app.h"

#include <utility>

#include "platform/system.h"
#include "support/modPrivateDummy.h"
#include "support/shell.h"
#include "text/text.h"

namespace quenda {

App::App(const Machine& services)
    : machine(services),
      errors(environment, machine.files, machine.clock),
      ini(errors, machine.files, paths),
      language(errors, machine.files, machine.clock, ini) {
  errors.look_up_text = [this](std::string_view key) {
    return language.LoadLangKey(key, german_text(key));
  };
  errors.show_message = [this](std::string_view text, MessageStyle style, std::string_view title) {
    modPrivateDummy::MsgBoxForward(errors, machine.dialogs, machine.system, text, style, title);
  };
  errors.show_fault = [this](std::string_view text, const std::string& report) {
    show_fault(text, report);
  };
}

bool App::start() {
  environment.program_code = "IMP";
  if (machine.system.previous_instance()) return false;
  paths.program_folder = machine.system.program_folder();
  if (!LoadSavePaths(errors, ini, machine.system, paths, specs)) return false;
  environment.main_folder = paths.data_root;
  apply_switches(specs, environment);

  language.LanguageInit("");
  load_shared_texts(language, shared_texts);
  if (machine.system.command_line().find("/i") != std::string::npos) return true;
  load_shared_texts(language, shared_texts);
  message_box(
      concat(text("Import_Msg_DirectCallNotProvided"), kCrLf, text("Import_Msg_UseMenuInBook")),
      MessageStyle::kInformation);
  return false;
}

MessageAnswer App::message_box(std::string_view text, MessageStyle style) {
  return modPrivateDummy::MsgBoxForward(errors, machine.dialogs, machine.system, text, style, "");
}

void App::show_fault(std::string_view message, const std::string& report) {
  const MoreButton more{text("Import_Button_Details"), [this, report] { tell_fault(report); }};
  modPrivateDummy::MsgBoxForward(errors, machine.dialogs, machine.system, message,
                                 MessageStyle::kExclamation, "", &more);
}

void App::tell_fault(const std::string& report) {
  const std::string trace = errors.written_trace();
  if (trace.empty() && errors.tracing()) {
    message_box(concat(report, kCrLf, kCrLf, text("Import_Msg_TraceNotWritten"), kCrLf,
                       errors.trace_path()),
                MessageStyle::kInformation);
  } else if (trace.empty()) {
    message_box(concat(report, kCrLf, kCrLf, text("Import_Msg_NoTraceLog"), kCrLf,
                       "\\Quendaspec.ini ([Debug] - TraceMode=1)"),
                MessageStyle::kInformation);
  } else if (!modImport::ShellEx(errors, machine.system, "Open", trace, "", "").empty()) {
    message_box(concat(report, kCrLf, kCrLf, trace), MessageStyle::kInformation);
  }
}

std::string App::open_file(FilterSet filters) {
  ChosenFile chosen = modAPI_FileOpenDlg::FileOpenDialog(
      errors, machine.dialogs, filters,
      {shared_texts.String_FilesAll, shared_texts.String_Pictures});
  if (!chosen.unusable.empty()) refuse_path(chosen.unusable);
  return std::move(chosen.path);
}

void App::refuse_path(std::string_view nearest) {
  message_box(concat(nearest, kCrLf, text("Import_Info_ImportNotAvailable")),
              MessageStyle::kInformation);
}

std::string App::version() const {
  return concat(std::to_string(environment.major), ".", std::to_string(environment.minor));
}

}  // namespace quenda
