// Files and folders with few rights, as an ordinary user meets them.
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <functional>
#include <string>

#include "store/db/sqlite_connection.h"
#include "store/db/sqlite_create.h"
#include "support/db_raised.h"
#include "support/db_temporary_folder.h"

namespace ordex {
namespace {

constexpr uid_t kNobody = 65534;

// For root no right is ever missing, so root becomes somebody else, in a process of its own. Gives
// the description of the error that `call` raises; empty where it raises none.
std::string ErrorOfUnprivileged(const std::function<void()>& call) {
  if (geteuid() != 0) return DbRaisedBy(call).description;
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return "no pipe";
  const pid_t child = fork();
  if (child == 0) {
    std::string told = "cannot become another user";
    if (setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0) {
      told = DbRaisedBy(call).description;
    }
    const bool written = write(ends[1], told.data(), told.size()) >= 0;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  std::string told;
  std::array<char, 512> buffer{};
  ssize_t length = 0;
  while ((length = read(ends[0], buffer.data(), buffer.size())) > 0) {
    told.append(buffer.data(), static_cast<std::size_t>(length));
  }
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? told : "the child process failed";
}

class SqliteRightsTest : public testing::Test {
 protected:
  SqliteRightsTest() { CreateSqliteDatabase(file_, false); }

  void Rights(const std::filesystem::path& path, mode_t mode) {
    ASSERT_EQ(chmod(path.c_str(), mode), 0);
  }

  void Read() const {
    const auto connection = OpenSqlite(file_);
    if (connection->Prepare("SELECT ID_Utente FROM Utenti")->FetchAll().size() != 1) {
      throw MakeError(ErrorNumber::kSubscript, "rows are missing");
    }
  }
  void Write() const {
    OpenSqlite(file_)->Insert("Utenti", std::vector<NamedValue>{{"NomeUtente", std::string("X")}});
  }

  std::string OpenError(const char* problem) const {
    return DbError("\"" + file_.string() + "\": impossibile aprire il database: " + problem)
        .description;
  }

  DbTemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "studio?a=b%41.db";
};

const std::string kReadOnly =
    DbError(
        "il database è di sola lettura; controllare i diritti di scrittura sul file e sulla sua "
        "cartella")
        .description;

TEST_F(SqliteRightsTest, AReadOnlyFileOpensForReadingAndRefusesAWrite) {
  Rights(file_, 0444);
  Rights(folder_.path(), 0777);
  EXPECT_EQ(ErrorOfUnprivileged([&] { Read(); }), "");
  EXPECT_EQ(ErrorOfUnprivileged([&] { Write(); }), kReadOnly);
}

TEST_F(SqliteRightsTest, AReadOnlyFileInAReadOnlyFolderOpensForReadingToo) {
  Rights(file_, 0444);
  Rights(folder_.path(), 0555);
  EXPECT_EQ(ErrorOfUnprivileged([&] { Read(); }), "");
  EXPECT_EQ(ErrorOfUnprivileged([&] { Write(); }), kReadOnly);
}

TEST_F(SqliteRightsTest, AReadOnlyUserSeesWhatAWriterHasJustWritten) {
  const auto writer = OpenSqlite(file_);
  writer->Execute("delete from Utenti");
  writer->Insert("Utenti", std::vector<NamedValue>{{"NomeUtente", std::string("NUOVO")}});
  Rights(file_, 0444);
  Rights(folder_.path(), 0555);
  EXPECT_EQ(ErrorOfUnprivileged([&] {
              const Row row =
                  OpenSqlite(file_)->Prepare("SELECT NomeUtente FROM Utenti")->FetchAll().at(0);
              if (ToText(row.at(0)) != "NUOVO") throw MakeError(ErrorNumber::kSubscript, "old");
            }),
            "");
}

TEST_F(SqliteRightsTest, AFileThatMayNotBeReadIsNamedWithWhatToDo) {
  Rights(file_, 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] { Read(); }),
            OpenError("il file del database, o un file di lavoro accanto ad esso, non si può "
                      "aprire; controllare i diritti sul file e sulla sua cartella"));
}

TEST_F(SqliteRightsTest, AFolderThatMayNotBeEnteredIsNotTakenForAnAbsentFile) {
  Rights(folder_.path(), 0);
  EXPECT_EQ(ErrorOfUnprivileged([&] { Read(); }),
            OpenError("il file del database, o un file di lavoro accanto ad esso, non si può "
                      "aprire; controllare i diritti sul file e sulla sua cartella"));
}

TEST_F(SqliteRightsTest, APipeIsNoDatabaseAndIsNotWaitedFor) {
  file_ = folder_ / "tubo";
  ASSERT_EQ(mkfifo(file_.c_str(), 0600), 0);
  EXPECT_EQ(DbRaisedBy([&] { Read(); }).description,
            OpenError("il file non è un database; controllare il nome del file nelle "
                      "impostazioni"));
}

TEST_F(SqliteRightsTest, AFileWithALogThatMayNotBeReadIsNotReadWithoutIt) {
  // The log holds what the file does not hold yet.
  const auto writer = OpenSqlite(file_);
  writer->Insert("Utenti", std::vector<NamedValue>{{"NomeUtente", std::string("NUOVO")}});
  Rights(file_, 0444);
  Rights(std::filesystem::path(file_).concat("-wal"), 0);
  Rights(std::filesystem::path(file_).concat("-shm"), 0);
  Rights(folder_.path(), 0555);
  EXPECT_NE(ErrorOfUnprivileged([&] { Read(); }), "");
}

TEST_F(SqliteRightsTest, ANewDatabaseInAReadOnlyFolderIsAnErrorAndLeavesNothing) {
  Rights(folder_.path(), 0555);
  const std::filesystem::path wanted = folder_ / "nuovo.db";
  EXPECT_EQ(ErrorOfUnprivileged([&] { CreateSqliteDatabase(wanted, false); }),
            DbError("\"" + wanted.string() +
                    "\": impossibile creare il database: il file del database, o un file di lavoro "
                    "accanto ad esso, non si può aprire; controllare i diritti sul file e sulla "
                    "sua cartella")
                .description);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.path()), {}), 1);
}

}  // namespace
}  // namespace ordex
