#include "base/text_file.h"

#include <chrono>
#include <cstdint>
#include <fstream>
#include <random>
#include <system_error>
#include <thread>
#include <utility>

#include "base/error.h"
#include "base/path_text.h"
#include "base/quoted.h"
#include "base/text.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

constexpr int kMostLinks = 40;

RunTimeError AccessError(const fs::path& path, std::string_view what) {
  return MakeError(ErrorNumber::kFileAccess,
                   std::string(what) + " " + Quoted(TextOf(path)) +
                       ". Controllare che la cartella esista e che i diritti bastino.");
}

// The file that `path` names in the end, also where it does not exist yet.
fs::path FollowLinks(const fs::path& path) {
  std::error_code failure;
  fs::path target = path;
  for (int links = 0; fs::is_symlink(target, failure); ++links) {
    const fs::path next = fs::read_symlink(target, failure);
    if (failure || links == kMostLinks) throw AccessError(path, "impossibile scrivere");
    target = target.parent_path() / next;
  }
  return target;
}

// A name that no other file has and that nobody can foresee: two programs that replace the same
// file at the same time do not write into each other's text.
fs::path NameBeside(const fs::path& target) {
  std::random_device random;
  const std::uint64_t number = std::uint64_t{random()} << 32 | random();
  return fs::path(target).concat("." + std::to_string(number) + ".nuovo");
}

// Writes `text` into the new file `path`, with the permissions that `old` has. These are set while
// the file is still empty: what only its owner may read is at no time open to others.
bool WriteNewFile(const fs::path& path, std::string_view text, const fs::path& old) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  std::error_code failure;
  const fs::file_status status = fs::status(old, failure);
  if (fs::exists(status)) fs::permissions(path, status.permissions(), failure);
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  return !out.fail();
}

// Some systems replace no file that another program reads, and let nobody read it meanwhile;
// neither takes long. Tries `act` again until it returns true, at most so often.
template <class Act>
bool TryUntil(int tries, Act act) {
  constexpr std::chrono::milliseconds kPause{5};
  for (int tried = 1; !act(); ++tried) {
    if (tried == tries) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

bool PutInPlace(const fs::path& beside, const fs::path& target) {
  constexpr int kHalfASecond = 100;
  std::error_code failure;
  TryUntil(kHalfASecond, [&] {
    fs::rename(beside, target, failure);
    return failure != std::errc::permission_denied;
  });
  return !failure;
}

bool OpenForReading(const fs::path& path, std::ifstream& in) {
  constexpr int kATenthOfASecond = 20;
  return TryUntil(kATenthOfASecond, [&] {
    in.open(path, std::ios::binary);
    return in.is_open();
  });
}

}  // namespace

std::string ReadTextFile(const fs::path& path) {
  std::error_code failure;
  const fs::file_status status = fs::status(path, failure);
  if (status.type() == fs::file_type::not_found) {
    throw MakeError(ErrorNumber::kFileNotFound, Quoted(TextOf(path)));
  }
  std::ifstream in;
  if (fs::is_directory(status) || !OpenForReading(path, in)) {
    throw AccessError(path, "impossibile leggere");
  }
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  if (size < 0) throw AccessError(path, "impossibile leggere");
  std::string bytes(static_cast<std::size_t>(size), '\0');
  in.seekg(0);
  in.read(bytes.data(), size);
  if (in.gcount() != size) throw AccessError(path, "impossibile leggere");
  return DecodeText(std::move(bytes));
}

void ReplaceTextFile(const fs::path& path, std::string_view text) {
  const fs::path target = FollowLinks(path);
  const fs::path beside = NameBeside(target);
  if (WriteNewFile(beside, text, target) && PutInPlace(beside, target)) return;
  std::error_code ignored;
  fs::remove(beside, ignored);
  throw AccessError(path, "impossibile scrivere");
}

}  // namespace ordex
