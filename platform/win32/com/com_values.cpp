#include "platform/win32/com/com_values.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

#include "platform/win32/text_win32.h"
#include "text/fault.h"

namespace quenda {
namespace {

constexpr LCID kGerman = 0x0407;

// The component system counts days from here, from the year 100 to the year 9999.
constexpr std::chrono::sys_days kDayZero{std::chrono::year(1899) / 12 / 30};
constexpr double kFirstDay = -657434;
constexpr double kLastDay = 2958465;
constexpr double kSecondsPerDay = 86400;

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
  // Before the first day the fraction counts forward, too: -1.25 is 6 o'clock on 29.12.1899.
  const double day = std::trunc(date);
  if (!(day >= kFirstDay && day <= kLastDay)) raise_fault(kFaultTypeMismatch);
  const auto seconds = std::chrono::seconds(std::lround(std::abs(date - day) * kSecondsPerDay));
  const auto moment = kDayZero + std::chrono::days(static_cast<int>(day)) + seconds;
  const auto midnight = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day on(midnight);
  const std::chrono::hh_mm_ss at(moment - midnight);
  std::array<char, 64> text{};
  int length =
      std::snprintf(text.data(), text.size(), "%02u.%02u.%04d", static_cast<unsigned>(on.day()),
                    static_cast<unsigned>(on.month()), static_cast<int>(on.year()));
  if (moment != midnight) {
    length += std::snprintf(text.data() + length, text.size() - static_cast<std::size_t>(length),
                            " %02d:%02d:%02d", static_cast<int>(at.hours().count()),
                            static_cast<int>(at.minutes().count()),
                            static_cast<int>(at.seconds().count()));
  }
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace quenda
