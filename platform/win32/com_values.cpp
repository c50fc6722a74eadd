#include "platform/win32/com_values.h"

#include <array>
#include <cstdio>

#include "platform/win32/text_win32.h"
#include "support/fault.h"

namespace quenda {
namespace {

constexpr LCID kGerman = 0x0407;

BSTR allocate(std::string_view text) {
  const std::wstring units = wide(text);
  const BSTR made = SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
  if (made == nullptr) raise_fault(kFaultOutOfMemory);
  return made;
}

}  // namespace

Bstr::Bstr(std::string_view text) : text_(allocate(text)) {}

std::string Bstr::text() const {
  return text_ == nullptr ? std::string()
                          : nearest_1252(std::wstring_view(text_, SysStringLen(text_)));
}

Variant::Variant(long number) {
  VariantInit(&value_);
  value_.vt = VT_I4;
  value_.lVal = number;
}

Variant::Variant(std::string_view text) {
  VariantInit(&value_);
  value_.bstrVal = allocate(text);
  value_.vt = VT_BSTR;
}

bool Variant::change(VARTYPE type) {
  return SUCCEEDED(VariantChangeTypeEx(&value_, &value_, kGerman, VARIANT_LOCALBOOL, type));
}

std::string Variant::text() {
  if ((value_.vt & VT_BYREF) != 0 && FAILED(VariantCopyInd(&value_, &value_))) {
    raise_fault(kFaultTypeMismatch);
  }
  if (value_.vt == VT_EMPTY || value_.vt == VT_NULL) return {};
  if (value_.vt == VT_DATE) return german_date(value_.date);
  if (!change(VT_BSTR)) raise_fault(kFaultTypeMismatch);
  return value_.bstrVal == nullptr
             ? std::string()
             : nearest_1252(std::wstring_view(value_.bstrVal, SysStringLen(value_.bstrVal)));
}

long Variant::number() {
  if (!change(VT_I4)) raise_fault(kFaultTypeMismatch);
  return value_.lVal;
}

ComPtr<IDispatch> Variant::object() {
  ComPtr<IDispatch> result;
  const bool holds_object = value_.vt == VT_DISPATCH || value_.vt == VT_UNKNOWN;
  if (holds_object && value_.punkVal != nullptr) {
    value_.punkVal->QueryInterface(IID_IDispatch, result.out_void());
  }
  return result;
}

std::string german_date(double date) {
  SYSTEMTIME time{};
  if (VariantTimeToSystemTime(date, &time) == FALSE) raise_fault(kFaultTypeMismatch);
  std::array<char, 64> text{};
  int length =
      std::snprintf(text.data(), text.size(), "%02u.%02u.%04u", static_cast<unsigned>(time.wDay),
                    static_cast<unsigned>(time.wMonth), static_cast<unsigned>(time.wYear));
  if (time.wHour != 0 || time.wMinute != 0 || time.wSecond != 0) {
    length +=
        std::snprintf(text.data() + length, text.size() - static_cast<std::size_t>(length),
                      " %02u:%02u:%02u", static_cast<unsigned>(time.wHour),
                      static_cast<unsigned>(time.wMinute), static_cast<unsigned>(time.wSecond));
  }
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace quenda
