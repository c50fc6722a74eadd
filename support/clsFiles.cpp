#include "support/clsFiles.h"

#include <utility>

#include "platform/clock.h"
#include "platform/files.h"
#include "support/procedure.h"
#include "text/date_text.h"
#include "text/line_breaks.h"
#include "text/text.h"

namespace quenda {
namespace {

constexpr std::int64_t kKilobyte = 1024;

/// The log without its oldest lines, so that it fits into three quarters of the maximum. A log
/// without a CR LF is one line and goes as a whole.
std::string_view newest_lines(std::string_view log, std::int32_t maximum) {
  const std::int64_t target = maximum - maximum / 4;
  while (static_cast<std::int64_t>(log.size()) / kKilobyte > target) {
    const auto line_end = log.find(kCrLf);
    log.remove_prefix(line_end == log.npos ? log.size() : line_end + kCrLf.size());
  }
  return log;
}

}  // namespace

long line_count(std::string_view text) {
  if (text.empty()) return 0;
  const auto line_ends = static_cast<long>(count_line_breaks(text).pairs);
  if (line_ends > 0) return line_ends + (text.ends_with(kCrLf) ? 0 : 1);
  return static_cast<long>(count_of(text, '\n')) / 2 + 1;
}

void clsFiles::FileWrite_Log(std::string_view path, std::string_view text, std::int32_t maximum) {
  procedure(errors_, "clsFiles.FileWrite_Log", {path}, [&] {
    const std::string entry = concat(log_stamp(clock_.now()), text);
    const auto size = static_cast<std::int64_t>(files_.size(path)) / kKilobyte;
    if (maximum < 1 || maximum >= size) {
      MakeFile(path, entry, true);
      return;
    }
    long count = 0;
    const std::string log = fOpenFileToStream(path, count);
    files_.append(path, "");  // refuses a link, which writing anew would follow
    // A log that cannot be read at the moment is not shortened.
    if (log.empty()) {
      MakeFile(path, entry, true);
      return;
    }
    MakeFile(path, concat(newest_lines(log, maximum), entry), false);
  }).or_go_on();
}

std::string clsFiles::fOpenFileToStream(std::string_view path, long& count) {
  std::string text;
  count = 0;
  procedure(errors_, "clsFiles.fOpenFileToStream", {path}, [&] {
    if (!files_.exists(path) || files_.size(path) == 0) return;
    text = files_.read(path);
    count = line_count(text);
  }).or_go_on();
  return text;
}

bool clsFiles::MakeFile(std::string_view path, std::string_view text, bool append) {
  return procedure_with_own_report(
      errors_, "clsFiles.MakeFile", {path, append},
      [&] {
        const std::string line = concat(text, kCrLf);
        if (append) {
          files_.append(path, line);
        } else {
          files_.write(path, line);
        }
      },
      [&](const RuntimeFault& fault, int statement) {
        errors_.ErrorLogNew("clsFiles_MakeFile", {}, fault, statement);
      });
}

bool clsFiles::FileExist(std::string_view path) {
  bool there = false;
  procedure(errors_, "clsFiles.FileExist", {path}, [&] { there = files_.exists(path); }).or_go_on();
  return there;
}

void clsFiles::FileDelete(std::string_view path) {
  procedure(errors_, "clsFiles.FileDelete", {path}, [&] { files_.remove(path); }).or_go_on();
}

}  // namespace quenda
