#include "base/keyed_table.h"

#include <utility>

#include "base/ascii_words.h"
#include "base/error.h"
#include "base/text.h"

namespace ordex {
namespace {

std::string Quoted(std::string_view key) {
  return "\"" + std::string(key) + "\"";
}

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
  for (std::size_t at = 0; at + kWordSize < a.size(); at += kWordSize) {
    if (LowerAsciiWord(LoadWord(a.data() + at)) != LowerAsciiWord(LoadWord(b.data() + at))) {
      return false;
    }
  }
  return LowerAsciiWord(LastWord(a)) == LowerAsciiWord(LastWord(b));
}

KeyedTable::Index::const_iterator KeyedTable::Find(std::string_view key) const {
  return IsAscii(key) ? index_.find(key) : index_.find(Lower(key));
}

void KeyedTable::Add(std::string value, std::string_view key) {
  if (!key.empty() && !index_.try_emplace(Lower(key), slots_.size()).second) {
    throw MakeError(ErrorNumber::kDuplicateKey, Quoted(key));
  }
  slots_.push_back({{std::string(key), std::move(value)}, false});
}

const std::string* KeyedTable::Lookup(std::string_view key) const {
  const auto found = Find(key);
  return found == index_.end() ? nullptr : &slots_[found->second].entry.value;
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
  if (removed_ == 0) return slots_[position - 1].entry;
  std::size_t slot = 0;
  for (;; ++slot) {
    if (!slots_[slot].removed && --position == 0) return slots_[slot].entry;
  }
}

std::string KeyedTable::Take(std::string_view key) {
  const auto found = Find(key);
  if (found == index_.end()) throw MakeError(ErrorNumber::kMissingKey, Quoted(key));
  Slot& slot = slots_[found->second];
  std::string value = std::move(slot.entry.value);
  index_.erase(found);
  slot = {{}, true};
  ++removed_;
  if (removed_ > slots_.size() / 2) SweepEmptySlots();
  return value;
}

void KeyedTable::Remove(std::string_view key) {
  Take(key);
}

void KeyedTable::SweepEmptySlots() {
  std::vector<Slot> kept;
  kept.reserve(slots_.size() - removed_);
  for (Slot& slot : slots_) {
    if (!slot.removed) kept.push_back(std::move(slot));
  }
  slots_ = std::move(kept);
  removed_ = 0;
  for (std::size_t i = 0; i < slots_.size(); ++i) {
    if (!slots_[i].entry.key.empty()) index_[Lower(slots_[i].entry.key)] = i;
  }
}

void KeyedTable::Clear() {
  *this = KeyedTable();
}

std::vector<KeyedTable::Entry> KeyedTable::Entries() const {
  std::vector<Entry> entries;
  entries.reserve(Count());
  for (const Slot& slot : slots_) {
    if (!slot.removed) entries.push_back(slot.entry);
  }
  return entries;
}

bool ItemExists(const KeyedTable& collection, std::string_view key) {
  return collection.Exists(key);
}

}  // namespace ordex
