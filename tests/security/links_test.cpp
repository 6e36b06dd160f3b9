// A person's e-mail address comes from the database and is handed to the system as a link. It can
// carry neither a second argument nor anything that a shell or a mail program would take for more.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "abuse/console_try.h"
#include "database.h"
#include "json_match.h"
#include "workplace.h"

namespace ordex::security {
namespace {

using abuse::ConsoleTry;
using sessions::Json;
using sessions::Workplace;

std::string OpenedLink(const ConsoleTry& run) {
  std::string_view output = run.console().output();
  while (!output.empty()) {
    const std::size_t end = output.find('\n');
    const Json event = Json::parse(output.substr(0, end), nullptr, false);
    if (event.is_object() && event["event"] == "open") return event["text"];
    output.remove_prefix(end == std::string_view::npos ? output.size() : end + 1);
  }
  return {};
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const bool escape = text.front() == '%' && text.size() > 2;
    plain.push_back(escape
                        ? static_cast<char>(std::stoi(std::string(text.substr(1, 2)), nullptr, 16))
                        : text.front());
    text.remove_prefix(escape ? 3 : 1);
  }
  return plain;
}

class HostileAddress : public ::testing::TestWithParam<const char*> {};

TEST_P(HostileAddress, StaysOneAddress) {
  constexpr std::string_view kLink = "mailto:";
  // What begins a further argument, ends a quoted one, or means something to a shell. Letters of
  // every alphabet and the semicolon between two addresses stay.
  constexpr std::string_view kForbidden = "?&#=\"<>\\^`{|}() \r\n\t";
  Workplace workplace(ORDEX_SOURCE_DIR);
  std::string quoted;
  for (const char character : std::string_view(GetParam())) {
    quoted.append(character == '\'' ? 2 : 1, character);
  }
  sessions::RunSql(workplace.database(),
                   "UPDATE Anagrafica SET Email = '" + quoted + "' WHERE ID_Ana = 2");
  workplace.TakePage("samples/profilo-contratto.txt");
  workplace.Prepare(false);
  ConsoleTry run(workplace, {"person 2", "click lblInfo2", "close", "close"});
  run.console().Finish();
  EXPECT_EQ(run.console().exitCode(), 0) << run.console().errors();
  const std::string link = OpenedLink(run);
  ASSERT_TRUE(link.starts_with(kLink)) << link;
  const std::string address = link.substr(kLink.size());
  EXPECT_EQ(address.find_first_of(kForbidden), std::string::npos) << link;
  EXPECT_EQ(Unescaped(address), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Of, HostileAddress,
                         ::testing::Values("a@b.example?cc=c@d.example", "a@b.example&bcc=c",
                                           "a@b.example?attach=/etc/passwd", "a@b#c",
                                           "a@b.example\" /c calc.exe", "a@b; rm -rf /", "a@b | sh",
                                           "`id`@b", "$(id)@b", "a@b\r\nBcc: c@d", "a@b%0D%0ABcc:c",
                                           "javascript:alert(1)", "file:///etc/passwd",
                                           "-attach /etc/passwd",
                                           "\xE2\x80\xAE"
                                           "a@b",
                                           "a<b>c^d%PATH%"));

}  // namespace
}  // namespace ordex::security
