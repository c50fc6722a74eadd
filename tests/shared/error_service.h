#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/clsErrorHandling.h"
#include "tests/shared/fake_files.h"
#include "tests/shared/fakes.h"

namespace quenda {

/// An error service on fakes that writes down its reports and boxes. Its main folder is "D:".
struct ErrorService {
  FakeFiles files;
  FakeClock clock;
  ErrorEnvironment environment;
  clsErrorHandling errors{environment, files, clock};
  std::vector<std::pair<std::string, int>> reports;  // procedure and fault number
  std::vector<FakeDialogs::Box> boxes;

  ErrorService() {
    environment.main_folder = "D:";
    for (const auto* folder : {"D:", "D:\\log", "D:\\data"}) files.add_folder(folder);
    errors.on_report = [this](std::string_view procedure, const RuntimeFault& fault,
                              std::string_view /*parameters*/) {
      reports.emplace_back(procedure, fault.number());
    };
    errors.show_message = [this](std::string_view text, MessageStyle style,
                                 std::string_view title) {
      boxes.push_back({std::string(text), style, std::string(title)});
    };
  }
};

}  // namespace quenda
