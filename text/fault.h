#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace quenda {

/// A run-time fault: the number and the German description that the user's error reports carry.
class RuntimeFault : public std::exception {
 public:
  explicit RuntimeFault(int number);
  /// With a sentence on what the fault means for the user.
  RuntimeFault(int number, std::string_view addition);
  [[nodiscard]] int number() const { return number_; }
  /// German text, Windows-1252.
  [[nodiscard]] const std::string& description() const { return description_; }
  /// German text, Windows-1252; mostly empty.
  [[nodiscard]] const std::string& addition() const { return addition_; }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
  std::string addition_;
};

/// Numbers of the faults that this program itself raises.
enum Fault : int {
  kFaultInvalidCall = 5,
  kFaultOverflow = 6,
  kFaultOutOfMemory = 7,
  kFaultIndexRange = 9,
  kFaultTypeMismatch = 13,
  kFaultInternal = 51,
  kFaultFileNotFound = 53,
  kFaultInputOutput = 57,
  kFaultDiskFull = 61,
  kFaultPermissionDenied = 70,
  kFaultPathAccess = 75,
  kFaultPathNotFound = 76,
  kFaultNoControlElement = 340,
  kFaultInvalidProperty = 380,
  kFaultInvalidPropertyIndex = 381,
  kFaultModelessWhileModal = 401,
  kFaultNoComponent = 429,
  kFaultNoSuchMember = 438,
  kFaultAutomation = 440,
};

[[noreturn]] void raise_fault(int number);

/// The usual German description of a fault number; numbers without one get a general text.
std::string_view fault_description(int number);

/// The exception in flight as a fault: a RuntimeFault as it is, lack of memory as 7, any other
/// standard exception as 51. To be called inside a catch block only.
RuntimeFault current_fault();

/// Ends the program from wherever it is thrown, inside a loop too. It is no std::exception, so that
/// nothing that deals with faults can swallow it; only the programs' mains catch it.
class EndProgram {};

}  // namespace quenda
