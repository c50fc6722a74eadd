#include "platform/files.h"

#include "text/fault.h"
#include "text/literal_1252.h"

namespace quenda {

void check_size(std::uint64_t bytes) {
  if (bytes <= kLargestFile) return;
  throw RuntimeFault(kFaultOutOfMemory, u8"Dateien über 2 GB werden nicht gelesen."_de);
}

}  // namespace quenda
