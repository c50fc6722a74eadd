#include <fstream>
#include <iterator>

#include "platform/win32/windows_headers.h"
#include "tests/settings/ini/ini_profile.h"
#include "tools/driver/temp_folder.h"

namespace quenda::ini_profile {
namespace {

/// A file with the content, in a folder of its own: the system remembers files by their names.
class File {
 public:
  explicit File(const std::string& content) { std::ofstream(path(), std::ios::binary) << content; }
  [[nodiscard]] std::string path() const { return folder_.path("test.ini"); }
  [[nodiscard]] std::string content() const {
    std::ifstream in(path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

 private:
  TempFolder folder_;
};

}  // namespace

std::string text(const std::string& content, const std::string& section, const std::string& key,
                 const std::string& standard) {
  const File file(content);
  std::string buffer(2048, '\0');
  buffer.resize(GetPrivateProfileStringA(section.c_str(), key.c_str(), standard.c_str(),
                                         buffer.data(), static_cast<DWORD>(buffer.size()),
                                         file.path().c_str()));
  return buffer;
}

std::int32_t number(const std::string& content, const std::string& section, const std::string& key,
                    std::int32_t standard) {
  const File file(content);
  return static_cast<std::int32_t>(
      GetPrivateProfileIntA(section.c_str(), key.c_str(), standard, file.path().c_str()));
}

std::string written(const std::string& content, const std::string& section, const std::string& key,
                    const std::string& value) {
  const File file(content);
  WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), file.path().c_str());
  WritePrivateProfileStringA(nullptr, nullptr, nullptr, file.path().c_str());
  return file.content();
}

}  // namespace quenda::ini_profile
