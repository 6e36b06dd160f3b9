#include "store/party_names.h"

#include <algorithm>
#include <array>

#include "base/error.h"
#include "base/text.h"

namespace ordex {
namespace {

constexpr std::size_t kLongestText = 32767;

enum class Place { kAnywhere, kAtEnd };

struct CompanyMark {
  Place place;
  std::string_view token;
};

// Later entries make earlier ones redundant (the dot alone catches every dotted form); the list is
// kept whole and in this order.
constexpr std::array<CompanyMark, 27> kCompanyMarks = {{
    {Place::kAnywhere, "s.a.s"},  {Place::kAnywhere, "s.p.a"},     {Place::kAnywhere, "s.s."},
    {Place::kAnywhere, "s.n.c"},  {Place::kAnywhere, "s.r.l"},     {Place::kAnywhere, "& c."},
    {Place::kAnywhere, "snc"},    {Place::kAnywhere, " spa "},     {Place::kAnywhere, "srl"},
    {Place::kAnywhere, " sas "},  {Place::kAnywhere, "s.a.s."},    {Place::kAnywhere, "s.p.a."},
    {Place::kAnywhere, "s.n.c."}, {Place::kAnywhere, "s.r.l."},    {Place::kAnywhere, "a.r.l."},
    {Place::kAnywhere, "&"},      {Place::kAnywhere, " e "},       {Place::kAnywhere, " di "},
    {Place::kAnywhere, "-"},      {Place::kAnywhere, "a.r.l"},     {Place::kAtEnd, " arl"},
    {Place::kAtEnd, " spa"},      {Place::kAtEnd, " sas"},         {Place::kAnywhere, " arl "},
    {Place::kAnywhere, "."},      {Place::kAnywhere, "ministero"}, {Place::kAnywhere, "condominio"},
}};

void RequireCountable(std::string_view text) {
  if (text.size() > kLongestText && CharCount(text) > kLongestText) {
    throw MakeError(ErrorNumber::kOverflow, "un nome ha più di 32767 caratteri");
  }
}

bool ContainsAny(std::string_view text, std::initializer_list<std::string_view> particles) {
  return std::any_of(particles.begin(), particles.end(),
                     [text](std::string_view particle) { return Contains(text, particle); });
}

// The next blank behind a first word that ends at `blank`, seen from character position `start`.
// Whether the text holds one of the particles or not, the search comes to the same place: the first
// blank stands behind a word of two to four letters, so there is none in front to trim away. The
// test is kept as the office's rule states it.
std::size_t BlankBehindParticle(std::string_view text, std::size_t start,
                                std::initializer_list<std::string_view> particles) {
  const std::string_view searched = ContainsAny(Lower(text), particles) ? TrimLeft(text) : text;
  return Find(searched, " ", start);
}

}  // namespace

bool IsSocieta(std::string_view name) {
  RequireCountable(name);
  const std::string lowered = Lower(name);
  return std::any_of(kCompanyMarks.begin(), kCompanyMarks.end(), [&](const CompanyMark& mark) {
    return mark.place == Place::kAtEnd ? lowered.ends_with(mark.token)
                                       : Contains(lowered, mark.token);
  });
}

std::string EstraiCognomi(std::string_view name, std::string& nome) {
  RequireCountable(name);
  std::string text = ReplaceAll(Trim(name), "\"", "");
  if (std::count(text.begin(), text.end(), ' ') >= 3) return text;
  std::size_t p = Find(text, " ");
  if (p == 3) p = BlankBehindParticle(text, 4, {"di", "de", "la"});
  if (p == 4) p = BlankBehindParticle(text, 5, {"del"});
  // A first word of four letters counts as a particle, although these have five: kept so.
  if (p == 5) p = BlankBehindParticle(text, 6, {"della", "dello", "degli", "delle"});
  if (p < 1) return text;
  nome = From(text, p + 1);
  return std::string(Left(text, p - 1));
}

}  // namespace ordex
