#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "tools/driver/temp_folder.h"

namespace quenda {

/// A suite's folder with the tool in it.
class SuiteFolder {
 public:
  /// A folder of its own, with settings, a phone book and a file of contacts.
  SuiteFolder();
  /// One that is there already, and stays.
  explicit SuiteFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// The path of something inside, with backslashes.
  [[nodiscard]] std::string path(const std::string& name) const {
    return folder_.string() + "\\" + name;
  }
  [[nodiscard]] std::string tool() const { return path("Import.exe"); }
  [[nodiscard]] std::string contacts() const { return path("kontakte.csv"); }

  /// The bytes of a file; empty when there is none.
  [[nodiscard]] std::string read(const std::string& name) const;
  void write(const std::string& name, std::string_view bytes) const;
  [[nodiscard]] std::string book() const { return read("data\\Quendabook.txt"); }
  void set_book(std::string_view bytes) const { write("data\\Quendabook.txt", bytes); }

  /// Settings of an import before with the same columns, so that they are chosen by themselves.
  void remember_columns() const;
  /// Ships the language files and chooses a language.
  void speak(std::string_view language) const;

 private:
  std::optional<TempFolder> own_;
  std::filesystem::path folder_;
};

}  // namespace quenda
