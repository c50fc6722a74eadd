#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>

namespace quenda {

/// Something that a collection holds without knowing what it is.
using CollectionObject = std::shared_ptr<void>;
using CollectionValue = std::variant<std::string, CollectionObject>;

/// Values in the order in which they were added, some under a key, positions from 1; also a queue
/// of texts that raises events as it fills. Keys are told apart by letter case. A missing key
/// or position gives an empty value; only `Queue_GetByIndex` raises.
class clsCollection {
 public:
  struct Item {
    CollectionValue value;
    std::string key;
    bool keyed = false;
  };
  using Items = std::list<Item>;

  /// Most texts that wait in the queue.
  static constexpr std::size_t kMostQueued = 10000;

  clsCollection() = default;
  // The keys point into the list: a copy's would point into the other one. `Clone` copies values.
  clsCollection(const clsCollection&) = delete;
  clsCollection& operator=(const clsCollection&) = delete;
  clsCollection(clsCollection&&) = default;
  clsCollection& operator=(clsCollection&&) = default;
  ~clsCollection() = default;

  std::function<void()> QueueAdded;
  std::function<void()> QueueFull;
  std::function<void(std::int32_t size)> QueueSize;  // never raised
  std::function<void()> QueueTimerStart;

  /// The values without their keys.
  [[nodiscard]] clsCollection Clone() const;
  /// Most texts kept, the oldest go; 0 for all, below 0 for none.
  void Queue_Limit(std::int16_t limit) { queue_limit_ = limit; }
  /// Up to that many texts raise QueueTimerStart, more raise QueueAdded; 0 always raises
  /// QueueAdded.
  void Queue_InfoDealy(std::int16_t threshold) { info_delay_ = threshold; }
  /// False when the queue is full and the text is lost.
  bool Queue_Add(std::string_view text);
  /// Takes the oldest text out of the queue.
  std::string Queue_ReadLast();
  [[nodiscard]] std::string Queue_ViewLast() const;
  /// Raises 9 where no text waits at the position.
  [[nodiscard]] std::string Queue_GetByIndex(std::int32_t position) const;

  bool Add(CollectionValue value);
  /// Adds the text key=value, under no key.
  bool AddByINIData(std::string_view key, std::string_view value);
  /// False when the key is there already.
  bool AddByKeyValue(std::string_view key, CollectionValue value);
  /// Puts the text key=value at the end, in place of what the key stood for.
  void ChangeByKeyValue(std::string_view key, std::string_view value);
  /// The text of a key without any "key=" in it.
  [[nodiscard]] std::string ItemByKeyValue(std::string_view key, std::string_view standard) const;
  [[nodiscard]] std::string GetItemByIndexByKeyValue(std::int32_t position) const;
  bool RemoveByKeyName(std::string_view key);
  /// The position as text; what is no number, or too large for one, removes nothing.
  bool RemoveByIndex(std::string_view position);
  bool RemoveFirst();
  [[nodiscard]] const Items& GetCollection() const { return items_; }
  [[nodiscard]] CollectionValue ItemByKey(std::string_view key) const;
  void ChangeKey(std::string_view old_key, std::string_view new_key);
  /// `found` tells an empty value from a missing one.
  CollectionValue GetItemByKey(std::string_view key, bool& found) const;
  [[nodiscard]] CollectionValue GetItemByIndex(std::int32_t position) const;
  [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
  /// Empties the collection; the queue goes on with its running number.
  void Clear();

 private:
  bool append(CollectionValue value, std::string_view key, bool keyed);
  void erase(Items::iterator item);
  [[nodiscard]] Items::const_iterator at(std::int32_t position) const;
  [[nodiscard]] const Item* by_key(std::string_view key) const;

  std::int16_t queue_limit_ = 0;
  std::int16_t info_delay_ = 0;
  std::int32_t running_key_ = 0;
  Items items_;
  std::unordered_map<std::string, Items::iterator> keys_;
};

}  // namespace quenda
