// The OLE DB connection string that the settings give, taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ordex {

struct ConnectionKey {
  std::string name;   // as written, trimmed
  std::string value;  // without its quotes or braces
  bool quoted = false;
};

// "Provider=…;Integrated Security=SSPI;…" in order. Values may stand between apostrophes, double
// quotes or braces; empty pieces between semicolons are passed over. Later keys win.
class ConnectionString {
 public:
  explicit ConnectionString(std::string_view text);

  // The value of the last key of that name, letter case ignored; empty where absent.
  std::string Value(std::string_view name) const;
  const std::vector<ConnectionKey>& keys() const { return keys_; }

 private:
  std::vector<ConnectionKey> keys_;
};

}  // namespace ordex
