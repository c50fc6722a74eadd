#include "tests/shared/fake_files.h"

#include <algorithm>

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

std::string FakeFiles::content(std::string_view path) const {
  const Entry* entry = find(path);
  return entry == nullptr ? std::string() : entry->content;
}

int FakeFiles::writes(std::string_view path) const {
  const Entry* entry = find(path);
  return entry == nullptr ? 0 : entry->writes;
}

bool FakeFiles::exists(std::string_view path) const { return find(path) != nullptr; }

std::uint64_t FakeFiles::size(std::string_view path) const {
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

void FakeFiles::replace_tail(std::string_view path, std::uint64_t keep, std::string_view tail) {
  const std::string key = key_of(path);
  check_writable(key);
  if (keep > size(path)) raise_fault(kFaultInvalidCall);
  store(key, concat(content(path).substr(0, static_cast<std::size_t>(keep)), tail));
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
