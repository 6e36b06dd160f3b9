#include "base/text_file.h"

#include <cstdint>
#include <fstream>
#include <random>
#include <system_error>
#include <utility>

#include "base/error.h"
#include "base/path_text.h"
#include "base/text.h"

namespace ordex {
namespace fs = std::filesystem;
namespace {

constexpr int kMostLinks = 40;

std::string Quoted(const fs::path& path) {
  return "\"" + TextOf(path) + "\"";
}

RunTimeError AccessError(const fs::path& path, std::string_view what) {
  return MakeError(ErrorNumber::kFileAccess,
                   std::string(what) + " " + Quoted(path) +
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

}  // namespace

std::string ReadTextFile(const fs::path& path) {
  std::error_code failure;
  const fs::file_status status = fs::status(path, failure);
  if (status.type() == fs::file_type::not_found) {
    throw MakeError(ErrorNumber::kFileNotFound, Quoted(path));
  }
  std::ifstream in(path, std::ios::binary);
  if (!in || fs::is_directory(status)) throw AccessError(path, "impossibile leggere");
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
  std::error_code failure;
  const bool written = WriteNewFile(beside, text, target);
  if (written) fs::rename(beside, target, failure);
  if (written && !failure) return;
  fs::remove(beside, failure);
  throw AccessError(path, "impossibile scrivere");
}

}  // namespace ordex
