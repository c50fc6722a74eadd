#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/tail_writing.h"
#include "tests/shared/fake_files.h"
#include "tests/shared/memory_tail.h"
#include "text/fault.h"

namespace quenda {

/// Calls of the files service that can fail, those inside the replacing of a file's end included.
enum class FileCall { kAsk, kRead, kReadPart, kWritePart, kCut, kFlush, kAny };

/// Files in memory of which one call fails as a system's would: questions answer as for a missing
/// file where they cannot raise, and what is written is written by half.
class FaultyFiles final : public Files {
 public:
  explicit FaultyFiles(FakeFiles& files) : files_(files) {}

  /// The n-th call of that kind from now on fails with the fault.
  void fail(FileCall kind, int n, int fault) {
    kind_ = kind;
    left_ = n;
    fault_ = fault;
    failed_ = false;
  }
  [[nodiscard]] bool failed() const { return failed_; }
  /// What another program does right before the book is changed.
  std::function<void()> before_replacing;

  bool exists(std::string_view path) const override {
    return !fails(FileCall::kAsk) && files_.exists(path);
  }
  bool has_file(std::string_view path) const override {
    raise_if(FileCall::kAsk);
    return files_.has_file(path);
  }
  bool has_folder(std::string_view path) const override {
    return !fails(FileCall::kAsk) && files_.has_folder(path);
  }
  std::uint64_t size(std::string_view path) const override {
    return fails(FileCall::kAsk) ? 0 : files_.size(path);
  }
  std::uint64_t stamp(std::string_view path) const override {
    return fails(FileCall::kAsk) ? 0 : files_.stamp(path);
  }
  std::string read(std::string_view path) const override {
    raise_if(FileCall::kRead);
    return files_.read(path);
  }
  void write(std::string_view path, std::string_view content) override {
    raise_if(FileCall::kWritePart);
    files_.write(path, content);
  }
  void append(std::string_view path, std::string_view content) override {
    raise_if(FileCall::kWritePart);
    files_.append(path, content);
  }
  ReplaceResult replace_tail(std::string_view path, const TailChange& change) override {
    if (before_replacing) before_replacing();
    raise_if(FileCall::kAsk);
    const bool existed = files_.exists(path);
    if (!existed && !change.old_text.empty()) raise_fault(kFaultFileNotFound);
    Tail tail(*this, files_.content(path));
    const auto keep_content = [&] {
      if (existed || !tail.content().empty()) files_.put(path, tail.content());
    };
    try {
      const ReplaceResult result = replace_tail_of(tail, change);
      if (result == ReplaceResult::kReplaced) keep_content();
      return result;
    } catch (const RuntimeFault&) {
      keep_content();
      throw;
    }
  }
  std::unique_ptr<FileLock> lock(std::string_view path, std::uint32_t milliseconds) override {
    return files_.lock(path, milliseconds);
  }
  bool same_file(std::string_view a, std::string_view b) const override {
    return !fails(FileCall::kAsk) && files_.same_file(a, b);
  }
  bool can_write(std::string_view path) const override {
    return !fails(FileCall::kAsk) && files_.can_write(path);
  }
  void make_folder(std::string_view path) override {
    raise_if(FileCall::kWritePart);
    files_.make_folder(path);
  }
  void remove(std::string_view path) noexcept override { files_.remove(path); }

 private:
  class Tail final : public MemoryTail {
   public:
    Tail(const FaultyFiles& files, std::string content)
        : MemoryTail(std::move(content)), files_(files) {}
    std::size_t read_at(std::uint64_t position, std::span<char> buffer) const override {
      files_.raise_if(FileCall::kReadPart);
      return MemoryTail::read_at(position, buffer);
    }
    void write_at(std::uint64_t position, std::string_view bytes) override {
      const bool failing = files_.fails(FileCall::kWritePart);
      MemoryTail::write_at(position, failing ? bytes.substr(0, bytes.size() / 2) : bytes);
      if (failing) raise_fault(files_.fault_);
    }
    void cut(std::uint64_t length) override {
      files_.raise_if(FileCall::kCut);
      MemoryTail::cut(length);
    }
    void flush() override { files_.raise_if(FileCall::kFlush); }

   private:
    const FaultyFiles& files_;
  };

  bool fails(FileCall kind) const {
    if (kind_ != kind && kind_ != FileCall::kAny) return false;
    if (left_ == 0 || --left_ > 0) return false;
    failed_ = true;
    return true;
  }
  void raise_if(FileCall kind) const {
    if (fails(kind)) raise_fault(fault_);
  }

  FakeFiles& files_;
  std::optional<FileCall> kind_;
  mutable int left_ = 0;
  mutable bool failed_ = false;
  int fault_ = 0;
};

}  // namespace quenda
