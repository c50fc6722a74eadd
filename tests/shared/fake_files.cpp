#include "tests/shared/fake_files.h"

#include <algorithm>

#include "tests/shared/memory_tail.h"
#include "text/fault.h"
#include "text/text.h"

namespace quenda {
namespace {

std::string key_of(std::string_view path) {
  std::string key = to_lower(path);
  std::replace(key.begin(), key.end(), '/', '\\');
  return key;
}

std::string folder_of(const std::string& key) {
  const auto end = key.rfind('\\');
  return end == std::string::npos ? std::string() : key.substr(0, end);
}

void raise_if_refused(const std::map<std::string, int>& refused, const std::string& key) {
  const auto found = refused.find(key);
  if (found != refused.end() && found->second != 0) raise_fault(found->second);
}

}  // namespace

void FakeFiles::put(std::string_view path, std::string_view content) {
  const std::string key = key_of(path);
  folders_.insert(folder_of(key));
  Entry& entry = entries_[key];
  entry.content = content;
  entry.stamp = next_stamp_++;
}

void FakeFiles::add_folder(std::string_view path) { folders_.insert(key_of(path)); }

void FakeFiles::refuse_writing(std::string_view path, int fault) {
  refused_writing_[key_of(path)] = fault;
}

void FakeFiles::refuse_reading(std::string_view path, int fault) {
  refused_reading_[key_of(path)] = fault;
}

void FakeFiles::hide(std::string_view path, int fault) { unclear_[key_of(path)] = fault; }

void FakeFiles::hold_lock(std::string_view path) { locked_.insert(key_of(path)); }

std::string FakeFiles::content(std::string_view path) const {
  const Entry* entry = find(path);
  return entry == nullptr ? std::string() : entry->content;
}

int FakeFiles::writes(std::string_view path) const {
  const Entry* entry = find(path);
  return entry == nullptr ? 0 : entry->writes;
}

bool FakeFiles::exists(std::string_view path) const {
  return find(path) != nullptr && unclear_.count(key_of(path)) == 0;
}

bool FakeFiles::has_file(std::string_view path) const {
  const std::string key = key_of(path);
  raise_if_refused(unclear_, key);
  if (folders_.contains(key)) raise_fault(kFaultPathAccess);
  return find(path) != nullptr;
}

bool FakeFiles::has_folder(std::string_view path) const {
  const std::string key = key_of(path);
  return std::any_of(folders_.begin(), folders_.end(), [&](const std::string& folder) {
    return folder == key || folder.starts_with(key + "\\");
  });
}

void FakeFiles::claim_size(std::string_view path, std::uint64_t bytes) {
  claimed_sizes_[key_of(path)] = bytes;
}

std::uint64_t FakeFiles::size(std::string_view path) const {
  const auto claimed = claimed_sizes_.find(key_of(path));
  if (claimed != claimed_sizes_.end()) return claimed->second;
  const Entry* entry = find(path);
  return entry == nullptr ? 0 : entry->content.size();
}

std::uint64_t FakeFiles::stamp(std::string_view path) const {
  const Entry* entry = find(path);
  return entry == nullptr ? 0 : entry->stamp;
}

std::string FakeFiles::read(std::string_view path) const {
  const std::string key = key_of(path);
  raise_if_refused(refused_reading_, key);
  if (folders_.contains(key)) raise_fault(kFaultPathAccess);
  const Entry* entry = find(path);
  if (entry == nullptr) {
    raise_fault(folders_.contains(folder_of(key)) ? kFaultFileNotFound : kFaultPathNotFound);
  }
  return entry->content;
}

void FakeFiles::write(std::string_view path, std::string_view content) {
  const std::string key = key_of(path);
  check_writable(key);
  store(key, std::string(content));
}

void FakeFiles::append(std::string_view path, std::string_view content) {
  const std::string key = key_of(path);
  check_writable(key);
  store(key, concat(this->content(path), content));
}

ReplaceResult FakeFiles::replace_tail(std::string_view path, const TailChange& change) {
  const std::string key = key_of(path);
  check_writable(key);
  if (find(path) == nullptr && !change.old_text.empty()) raise_fault(kFaultFileNotFound);
  MemoryTail file(content(path));
  const ReplaceResult result = replace_tail_of(file, change);
  if (result == ReplaceResult::kReplaced) store(key, file.content());
  return result;
}

std::unique_ptr<FileLock> FakeFiles::lock(std::string_view path, std::uint32_t /*milliseconds*/) {
  if (locked_.contains(key_of(path))) return nullptr;
  return std::make_unique<FileLock>();
}

bool FakeFiles::same_file(std::string_view a, std::string_view b) const {
  return find(a) != nullptr && find(a) == find(b);
}

bool FakeFiles::can_write(std::string_view path) const {
  const std::string key = key_of(path);
  return !refused_writing_.contains(key) && !folders_.contains(key) &&
         folders_.contains(folder_of(key));
}

void FakeFiles::make_folder(std::string_view path) {
  if (refused_writing_.contains(key_of(path))) raise_fault(kFaultPathAccess);
  add_folder(path);
}

void FakeFiles::remove(std::string_view path) noexcept {
  const std::string key = key_of(path);
  if (!refused_writing_.contains(key)) entries_.erase(key);
}

const FakeFiles::Entry* FakeFiles::find(std::string_view path) const {
  const auto found = entries_.find(key_of(path));
  return found == entries_.end() ? nullptr : &found->second;
}

void FakeFiles::check_writable(const std::string& key) const {
  raise_if_refused(refused_writing_, key);
  if (folders_.contains(key)) raise_fault(kFaultPathAccess);
  if (!folders_.contains(folder_of(key))) raise_fault(kFaultPathNotFound);
}

void FakeFiles::store(const std::string& key, std::string content) {
  Entry& entry = entries_[key];
  entry.content = std::move(content);
  entry.stamp = next_stamp_++;
  ++entry.writes;
}

}  // namespace quenda
