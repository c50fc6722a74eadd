#pragma once

#include <string>
#include <string_view>

#include "platform/win32/com/com_support.h"

namespace quenda {

/// A text in the form of the component system.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view text);
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;
  ~Bstr() { SysFreeString(text_); }
  [[nodiscard]] BSTR get() const { return text_; }
  BSTR* out() { return &text_; }
  /// The text in Windows-1252; characters that the code page lacks become near ones.
  [[nodiscard]] std::string text() const;

 private:
  BSTR text_ = nullptr;
};

/// A value of any type, cleared with its owner.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(long number);
  explicit Variant(std::string_view text);
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;
  ~Variant() { VariantClear(&value_); }
  [[nodiscard]] VARIANT* get() { return &value_; }

  /// As text: dates in the short German form, with the time only where there is one; nothing as the
  /// empty text. Fault 13 for what has no text.
  [[nodiscard]] std::string text();
  /// As a whole number; fault 13 for what is none.
  [[nodiscard]] long number();
  /// As an object; null for what is none.
  [[nodiscard]] ComPtr<IDispatch> object();

 private:
  [[nodiscard]] bool change(VARTYPE type);

  VARIANT value_{};
};

/// A date of the component system (days since 30.12.1899) as German text; fault 13 for a day before
/// the year 100 or after 9999.
std::string german_date(double date);

}  // namespace quenda
