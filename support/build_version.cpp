#include "support/build_version.h"

#include "text/text.h"

namespace quenda {

std::string build_version() {
  return concat(std::to_string(kVersionMajor), ".", std::to_string(kVersionMinor), " (",
                build_commit(), ")");
}

}  // namespace quenda
