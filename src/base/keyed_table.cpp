#include "base/keyed_table.h"

#include <iterator>
#include <utility>

#include "base/ascii_words.h"
#include "base/error.h"
#include "base/quoted.h"
#include "base/text.h"

namespace ordex {
namespace {

bool IsAscii(std::string_view text) {
  for (std::size_t at = 0; at + kWordSize < text.size(); at += kWordSize) {
    if (!IsAsciiWord(LoadWord(text.data() + at))) return false;
  }
  return IsAsciiWord(LastWord(text));
}

Word Mixed(Word hash, Word word) {
  hash = (hash ^ LowerAsciiWord(word)) * 0x9E3779B97F4A7C15;  // 2^64 by the golden ratio
  return hash ^ (hash >> 32);
}

}  // namespace

std::size_t KeyedTable::Hash::operator()(std::string_view key) const {
  Word hash = key.size();
  for (std::size_t at = 0; at + kWordSize < key.size(); at += kWordSize) {
    hash = Mixed(hash, LoadWord(key.data() + at));
  }
  return Mixed(hash, LastWord(key));
}

bool KeyedTable::Equal::operator()(std::string_view a, std::string_view b) const {
  if (a.size() != b.size()) return false;
  // Mostly the letter case is the same too.
  return a == b || EqualIgnoringAsciiCase(a, b);
}

KeyedTable::KeyedTable(const KeyedTable& other) {
  for (const Entry& entry : other.entries_) Add(entry.value, entry.key);
}

KeyedTable& KeyedTable::operator=(const KeyedTable& other) {
  return *this = KeyedTable(other);
}

KeyedTable::Index::const_iterator KeyedTable::Find(std::string_view key) const {
  return IsAscii(key) ? index_.find(key) : index_.find(Lower(key));
}

KeyedTable::Index::iterator KeyedTable::Find(std::string_view key) {
  return IsAscii(key) ? index_.find(key) : index_.find(Lower(key));
}

void KeyedTable::Add(std::string value, std::string_view key) {
  if (!key.empty()) {
    const auto [place, added] =
        index_.try_emplace(IsAscii(key) ? std::string(key) : Lower(key), entries_.end());
    if (!added) throw MakeError(ErrorNumber::kDuplicateKey, Quoted(key));
    place->second = entries_.insert(entries_.end(), {std::string(key), std::move(value)});
  } else {
    entries_.push_back({{}, std::move(value)});
  }
}

const std::string* KeyedTable::Lookup(std::string_view key) const {
  const auto found = Find(key);
  return found == index_.end() ? nullptr : &found->second->value;
}

const std::string& KeyedTable::Item(std::string_view key) const {
  const std::string* value = Lookup(key);
  if (value == nullptr) throw MakeError(ErrorNumber::kMissingKey, Quoted(key));
  return *value;
}

const KeyedTable::Entry& KeyedTable::At(std::size_t position) const {
  if (position < 1 || position > Count()) {
    throw MakeError(ErrorNumber::kSubscript, std::to_string(position));
  }
  return *std::next(entries_.begin(), static_cast<std::ptrdiff_t>(position - 1));
}

std::string KeyedTable::Take(std::string_view key) {
  const auto found = Find(key);
  if (found == index_.end()) throw MakeError(ErrorNumber::kMissingKey, Quoted(key));
  std::string value = std::move(found->second->value);
  entries_.erase(found->second);
  index_.erase(found);
  return value;
}

std::string* KeyedTable::MoveToEnd(std::string_view key) {
  const auto found = Find(key);
  if (found == index_.end()) return nullptr;
  entries_.splice(entries_.end(), entries_, found->second);
  found->second->key = key;
  return &found->second->value;
}

void KeyedTable::Remove(std::string_view key) {
  Take(key);
}

void KeyedTable::Clear() {
  index_.clear();
  entries_.clear();
}

std::vector<KeyedTable::Entry> KeyedTable::Entries() const {
  return {entries_.begin(), entries_.end()};
}

}  // namespace ordex
