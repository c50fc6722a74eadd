#include "support/clsCollection.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "tests/shared/fault_of.h"

namespace quenda {
namespace {

static_assert(!std::is_copy_constructible_v<clsCollection>, "a copy's keys would lead here");

TEST(Queue, TellsHowItFills) {
  clsCollection queue;
  std::string events;
  queue.QueueTimerStart = [&] { events += 't'; };
  queue.QueueAdded = [&] { events += 'a'; };
  queue.Queue_InfoDealy(2);
  for (const auto* text : {"1", "2", "3"}) EXPECT_TRUE(queue.Queue_Add(text));
  EXPECT_EQ(events, "tta");
  EXPECT_EQ(queue.Queue_ViewLast(), "1");
  EXPECT_EQ(queue.Queue_ReadLast(), "1");
  EXPECT_EQ(queue.Queue_GetByIndex(2), "3");
  EXPECT_EQ(fault_of([&] { return queue.Queue_GetByIndex(3); }), 9);
  EXPECT_EQ(queue.Count(), 2);
}

TEST(Queue, KeepsTheNewestUpToItsLimit) {
  clsCollection queue;
  queue.Queue_Limit(3);
  for (int i = 1; i <= 5; ++i) queue.Queue_Add(std::to_string(i));
  EXPECT_EQ(queue.Count(), 3);
  EXPECT_EQ(queue.Queue_ReadLast(), "3");
  EXPECT_EQ(std::get<std::string>(queue.ItemByKey("Key5")), "5");
  queue.Queue_Limit(-1);
  EXPECT_TRUE(queue.Queue_Add("6"));
  EXPECT_EQ(queue.Count(), 0);
}

TEST(Queue, RefusesThe10001stText) {
  clsCollection queue;
  bool full = false;
  queue.QueueFull = [&] { full = true; };
  for (int i = 0; i < 10000; ++i) ASSERT_TRUE(queue.Queue_Add("x") && !full);
  EXPECT_FALSE(queue.Queue_Add("late"));
  EXPECT_TRUE(full);
  EXPECT_EQ(queue.Count(), 10000);
}

TEST(Queue, CountsItsKeysOnAfterClear) {
  clsCollection queue;
  queue.Queue_Add("one");
  queue.Clear();
  EXPECT_EQ(queue.Queue_ReadLast(), "");
  EXPECT_FALSE(queue.RemoveFirst());
  queue.Queue_Add("two");
  bool found = true;
  queue.GetItemByKey("Key1", found);
  EXPECT_FALSE(found);
  EXPECT_EQ(std::get<std::string>(queue.GetItemByKey("Key2", found)), "two");
  EXPECT_TRUE(found);
}

TEST(Collection, HasUniqueKeysAndKeyValueTexts) {
  clsCollection items;
  EXPECT_TRUE(items.AddByKeyValue("name", std::string("name=Erika")));
  EXPECT_FALSE(items.AddByKeyValue("name", std::string("name=Hans")));
  EXPECT_TRUE(items.AddByINIData("city", "Bonn"));
  EXPECT_EQ(items.ItemByKeyValue("name", "-"), "Erika");
  EXPECT_EQ(items.ItemByKeyValue("none", "-"), "-");
  EXPECT_EQ(items.GetItemByIndexByKeyValue(2), "Bonn");
  items.ChangeByKeyValue("name", "Hans");
  EXPECT_EQ(items.GetItemByIndexByKeyValue(2), "Hans");
  EXPECT_EQ(items.Count(), 2);
}

TEST(Collection, RemovesAndRenamesAndClonesValuesWithoutKeys) {
  clsCollection items;
  for (const auto* key : {"a", "b", "c", "d"}) items.AddByKeyValue(key, std::string(key));
  for (const auto* none : {"x", "", "0", "1E400"}) EXPECT_FALSE(items.RemoveByIndex(none)) << none;
  EXPECT_FALSE(items.RemoveByIndex("5"));
  EXPECT_TRUE(items.RemoveByIndex("4"));
  items.AddByKeyValue("d", std::string("d"));
  EXPECT_TRUE(items.RemoveByIndex("2"));
  EXPECT_TRUE(items.RemoveByKeyName("c"));
  EXPECT_FALSE(items.RemoveByKeyName("c"));
  EXPECT_TRUE(items.RemoveFirst());
  items.ChangeKey("none", "x");
  items.ChangeKey("d", "new");
  EXPECT_EQ(std::get<std::string>(items.ItemByKey("new")), "d");
  const clsCollection copy = items.Clone();
  EXPECT_EQ(copy.Count(), 1);
  bool found = true;
  copy.GetItemByKey("new", found);
  EXPECT_FALSE(found);
  EXPECT_EQ(std::get<std::string>(copy.GetItemByIndex(9)), "");
}

}  // namespace
}  // namespace quenda
