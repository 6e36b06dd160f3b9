// The keyed table: an ordered collection of texts, each optionally under a key.
#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ordex {

// Looked up by key (letter case ignored, Unicode) or by 1-based position. Removing an entry moves
// those behind it one position down. Adding, looking up, removing and moving to the end by key take
// constant time; a position takes a walk.
class KeyedTable {
 public:
  KeyedTable() = default;
  ~KeyedTable() = default;
  KeyedTable(const KeyedTable& other);
  KeyedTable& operator=(const KeyedTable& other);
  KeyedTable(KeyedTable&&) = default;
  KeyedTable& operator=(KeyedTable&&) = default;

  struct Entry {
    std::string key;  // as written when it was added; empty when the entry has no key
    std::string value;
  };

  // Error: duplicate key. An empty key adds an entry without a key.
  void Add(std::string value, std::string_view key = {});
  // Error: missing key.
  const std::string& Item(std::string_view key) const;
  // Error: subscript, where `position` is not between 1 and Count().
  const Entry& At(std::size_t position) const;
  // Error: missing key.
  void Remove(std::string_view key);

  // Null where the key is absent. Valid until the table next changes.
  const std::string* Lookup(std::string_view key) const;

  // Takes the entry out and returns its value. Error: missing key.
  std::string Take(std::string_view key);
  // The value under the key, for the caller to build on. Its entry moves to the end, as if it had
  // been taken out and added again. Null where the key is absent.
  std::string* MoveToEnd(std::string_view key);

  std::size_t Count() const { return entries_.size(); }
  void Clear();
  // All entries in order.
  std::vector<Entry> Entries() const;

 private:
  // These two ignore the case of ASCII letters, so that a look-up builds no folded copy of its
  // key; other letters are folded beforehand.
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view key) const;
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };
  using Order = std::list<Entry>;
  using Index = std::unordered_map<std::string, Order::iterator, Hash, Equal>;

  Index::const_iterator Find(std::string_view key) const;
  Index::iterator Find(std::string_view key);

  Order entries_;
  Index index_;
};

// True when the table holds an item under the key; the failed look-up raises no error.
inline bool ItemExists(const KeyedTable& collection, std::string_view key) {
  return collection.Lookup(key) != nullptr;
}

}  // namespace ordex
