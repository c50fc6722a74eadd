#pragma once

#include <utility>

#include "platform/win32/windows_headers.h"
// windows.h has to come first.
#include <objbase.h>
#include <oleauto.h>

namespace quenda {

/// The apartment of a thread in the component system. A thread with windows has its own; threads
/// that only make calls share one, where calls need no messages to come through.
enum class Apartment : DWORD { kOwn = COINIT_APARTMENTTHREADED, kOfMany = COINIT_MULTITHREADED };

/// Joins the thread to an apartment for as long as it lives.
class ApartmentScope {
 public:
  explicit ApartmentScope(Apartment kind = Apartment::kOwn)
      : joined_(SUCCEEDED(CoInitializeEx(nullptr, static_cast<DWORD>(kind)))) {}
  ApartmentScope(const ApartmentScope&) = delete;
  ApartmentScope& operator=(const ApartmentScope&) = delete;
  ~ApartmentScope() {
    if (joined_) CoUninitialize();
  }

 private:
  bool joined_;
};

/// A counted reference to an interface.
template <class T>
class ComPtr {
 public:
  ComPtr() = default;
  ComPtr(const ComPtr& other) : pointer_(other.pointer_) {
    if (pointer_ != nullptr) pointer_->AddRef();
  }
  ComPtr(ComPtr&& other) noexcept : pointer_(std::exchange(other.pointer_, nullptr)) {}
  ComPtr& operator=(ComPtr other) noexcept {
    std::swap(pointer_, other.pointer_);
    return *this;
  }
  ~ComPtr() {
    if (pointer_ != nullptr) pointer_->Release();
  }

  [[nodiscard]] T* get() const { return pointer_; }
  T* operator->() const { return pointer_; }
  explicit operator bool() const { return pointer_ != nullptr; }
  /// Where a call puts the interface that it gives; what was held is released.
  T** out() {
    *this = ComPtr();
    return &pointer_;
  }
  void** out_void() { return reinterpret_cast<void**>(out()); }

 private:
  T* pointer_ = nullptr;
};

}  // namespace quenda
