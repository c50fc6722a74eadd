#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace quenda {

/// A folder of the test's own, gone with everything in it at the end of the scope. Its path is
/// ASCII, so it is the same text for the tool and for the system.
class TempFolder {
 public:
  TempFolder() {
    std::random_device random;
    path_ = std::filesystem::temp_directory_path() /
            ("quenda-" + std::to_string(random()) + "-" + std::to_string(random()));
    std::filesystem::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  /// The tool's path of something inside.
  [[nodiscard]] std::string path(const std::string& name) const {
    return path_.string() + "\\" + name;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace quenda
