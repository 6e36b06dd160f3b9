// The exact T-SQL of every statement that the routines write.
#include "store/db/dialect_sqlserver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "store/db/odbc_engine.h"
#include "store/db/sql_text.h"
#include "support/db_raised.h"

namespace ordex {
namespace {

std::string Rewritten(std::string_view sql) {
  return RewriteForSqlServer(Tokenize(sql));
}

void ExpectUnchanged(const std::string& sql) {
  EXPECT_EQ(Rewritten(sql), sql);
}

// --- the routines' statements -------------------------------------------------------------------

TEST(SqlServerStatement, TheLookUpOfAPagesNumberIsLeftAlone) {
  ExpectUnchanged("Select ID_Pra from Pratica where NumeroRegGenerale = '1842/2025'");
}

TEST(SqlServerStatement, TheLookUpOfAPartyIsLeftAlone) {
  ExpectUnchanged("SELECT Cognome,Nome From Anagrafica WHERE ID_Ana = 12");
}

TEST(SqlServerStatement, TheLookUpOfAPersonsCardIsLeftAlone) {
  ExpectUnchanged("SELECT * FROM Anagrafica WHERE ID_Ana = 12");
}

TEST(SqlServerStatement, TheLookUpOfTheUsersWhoKeepTheBooksIsLeftAlone) {
  ExpectUnchanged("Select ID_Utente, NomeUtente from Utenti where TitContabilita = 'TRUE'");
}

TEST(SqlServerStatement, TheLookUpOfTheCaseOfAnAgendaPageIsLeftAlone) {
  ExpectUnchanged(
      "SELECT ID_Pra,ID_Cliente,ID_Contab,Utenti.NomeUtente from Pratica inner join Utenti on "
      "Pratica.ID_Contab = Utenti.ID_Utente  where Pratica.NumeroRegGenerale = '907/2024'");
}

TEST(SqlServerStatement, TheLookUpOfAnAgendaEntryHasItsDateTextsAndUcaseRewritten) {
  EXPECT_EQ(
      Rewritten("SELECT * from SCADENZE where  Data_End =#06/10/2024# and Codice_Pra = 12 and "
                "Parti = \"ROSSI \\ D'AMICO\" and ucase(Scadenza) = \"PROVA \"\"A\"\"\""),
      "SELECT * from SCADENZE where  Data_End ='20240610' and Codice_Pra = 12 and "
      "Parti = 'ROSSI \\ D''AMICO' and UPPER(Scadenza) = 'PROVA \"A\"'");
}

TEST(SqlServerStatement, TheLookUpOfAnAgendaEntryWithAccentsGetsAnNBeforeItsTexts) {
  EXPECT_EQ(Rewritten("SELECT * from SCADENZE where  Data_End =#12/01/2025# and Codice_Pra = 1 and "
                      "Parti = \"ȘTEFĂNESCU\" and ucase(Scadenza) = \"ATTIVITÀ\""),
            "SELECT * from SCADENZE where  Data_End ='20251201' and Codice_Pra = 1 and "
            "Parti = N'ȘTEFĂNESCU' and UPPER(Scadenza) = N'ATTIVITÀ'");
}

TEST(SqlServerStatement, TheLookUpOfTheCaseOfAHearingIsLeftAlone) {
  ExpectUnchanged(
      "SELECT * from Pratica inner join Utenti on Pratica.ID_Contab = Utenti.ID_Utente  where "
      "Pratica.NumeroRegGenerale = " +
      FormattaStringaSql("12'A/2024"));
}

TEST(SqlServerStatement, TheLookUpOfAHearingIsLeftAlone) {
  const std::string sql =
      "select * from SCADENZE where  Data_End =" + FormattaDataSql("12/03/2026") +
      " and Codice_Pra = 2 and IsUdienza = 'TRUE' and IsOrdex = 'TRUE'";
  EXPECT_EQ(Rewritten(sql),
            "select * from SCADENZE where  Data_End =CONVERT (SMALLDATETIME,'12/03/2026', 105)  "
            "and Codice_Pra = 2 and IsUdienza = 'TRUE' and IsOrdex = 'TRUE'");
}

TEST(SqlServerStatement, TheLookUpOfADeadlineGetsAnNBeforeATextWithAccentsAlone) {
  const std::string sql =
      "select * from SCADENZE where  Data_End =" + FormattaDataSql("20/02/2026") +
      " and Codice_Pra = 2 and Scadenza = " + FormattaStringaSql("Memoria dell'attività") +
      " and IsOrdex = 'TRUE'";
  EXPECT_EQ(Rewritten(sql),
            "select * from SCADENZE where  Data_End =CONVERT (SMALLDATETIME,'20/02/2026', 105)  "
            "and Codice_Pra = 2 and Scadenza = N'Memoria dell''attività' and IsOrdex = 'TRUE'");
}

TEST(SqlServerStatement, TheLookUpOfAPersonGetsAnNBeforeANameWithAccentsAlone) {
  const std::string before = "SELECT * from Anagrafica where  LOWER(Cognome) = ";
  EXPECT_EQ(Rewritten(before + FormattaStringaSql("d'amico") +
                      " AND  LOWER(Nome) = " + FormattaStringaSql("luca")),
            "SELECT * from Anagrafica where  LOWER(Cognome) = 'd''amico' AND  LOWER(Nome) = "
            "'luca'");
  EXPECT_EQ(Rewritten(before + FormattaStringaSql("rustignè") +
                      " AND  LOWER(Nome) = " + FormattaStringaSql("mauro")),
            "SELECT * from Anagrafica where  LOWER(Cognome) = N'rustignè' AND  LOWER(Nome) = "
            "'mauro'");
}

TEST(SqlServerStatement, TheLookUpOfACompanyIsLeftAlone) {
  ExpectUnchanged(
      "SELECT * from Anagrafica where  LOWER(Cognome) = 'edilizia bianchi s.r.l.' AND  Nome IS "
      "NULL");
}

TEST(SqlServerStatement, TheLookUpOfACaseByItsIdentifierIsLeftAlone) {
  ExpectUnchanged("SELECT * FROM Pratica WHERE Id_Pra = 0");
}

TEST(SqlServerStatement, TheLookUpOfTheHighestPositionIsLeftAlone) {
  ExpectUnchanged("SELECT MAX(NumPos) AS PosMax FROM Pratica");
}

TEST(SqlServerStatement, TheDeletionOfACasesEventsIsLeftAlone) {
  ExpectUnchanged("Delete from EventiPraOrdex where ID_PraRel = 7");
}

TEST(SqlServerStatement, TheLookUpOfThePortalProfileIsLeftAlone) {
  ExpectUnchanged("SELECT * from PraOrdex where ID_PraRel = 7");
}

TEST(SqlServerStatement, TheLookUpsOfOneEventAndOfAllEventsAreLeftAlone) {
  ExpectUnchanged("SELECT * from EventiPraOrdex where ID_PraRel = 7 and Progressivo = 3");
  ExpectUnchanged("SELECT * from EventiPraOrdex where ID_PraRel = 7");
}

// --- what the driver writes itself --------------------------------------------------------------

TEST(SqlServerStatement, ANewRowGivesItsIdentityInTheSameBatch) {
  const std::vector<std::string> columns = {"NumPos", "Sezione"};
  const OdbcWrite write = MakeSqlServerEngine()->Insert("Pratica", columns, true);
  EXPECT_EQ(write.sql,
            "INSERT INTO [Pratica] ([NumPos], [Sezione]) VALUES (?, ?); "
            "SELECT CAST(SCOPE_IDENTITY() AS BIGINT)");
  EXPECT_EQ(write.numberSql, "");
}

TEST(SqlServerStatement, ANewRowWithoutAnyValueTakesTheDefaults) {
  EXPECT_EQ(MakeSqlServerEngine()->Insert("SCADENZE", {}, true).sql,
            "INSERT INTO [SCADENZE] DEFAULT VALUES; SELECT CAST(SCOPE_IDENTITY() AS BIGINT)");
}

TEST(SqlServerStatement, ANewRowOfATableWithoutAnIdentityGivesItsCount) {
  const std::vector<std::string> columns = {"A]B"};
  EXPECT_EQ(MakeSqlServerEngine()->Insert("T", columns, false).sql,
            "INSERT INTO [T] ([A]]B]) VALUES (?); SELECT CAST(@@ROWCOUNT AS BIGINT)");
}

TEST(SqlServerStatement, AChangedRowGivesItsCountInTheSameBatch) {
  const std::vector<std::string> columns = {"Sezione", "Oggetto"};
  EXPECT_EQ(MakeSqlServerEngine()->Update("Pratica", columns, "ID_Pra").sql,
            "UPDATE [Pratica] SET [Sezione] = ?, [Oggetto] = ? WHERE [ID_Pra] = ?; "
            "SELECT CAST(@@ROWCOUNT AS BIGINT)");
}

TEST(SqlServerStatement, ALimitStandsBehindSelect) {
  const auto engine = MakeSqlServerEngine();
  EXPECT_EQ(engine->Limited("SELECT ID_Pra FROM Pratica WHERE Oggetto LIKE ? ESCAPE '!'", 20),
            "SELECT TOP (20) ID_Pra FROM Pratica WHERE Oggetto LIKE ? ESCAPE '!'");
  EXPECT_EQ(engine->Limited("/* a */ select distinct A from T", 3),
            "/* a */ select distinct TOP (3) A from T");
}

TEST(SqlServerStatement, Transactions) {
  const auto engine = MakeSqlServerEngine();
  EXPECT_EQ(engine->BeginSql(), "BEGIN TRANSACTION");
  EXPECT_EQ(engine->CommitSql(), "COMMIT TRANSACTION");
  EXPECT_EQ(engine->RollbackSql(), "ROLLBACK TRANSACTION");
  EXPECT_EQ(engine->TransactionStateSql(),
            "SELECT CASE WHEN @@TRANCOUNT = 0 THEN 0 ELSE CAST(XACT_STATE() AS INT) END");
}

TEST(SqlServerStatement, ATextThroughTheCodePageAndBack) {
  EXPECT_EQ(MakeSqlServerEngine()->CodePageSql(),
            "SELECT CAST(CAST(? AS VARCHAR(MAX)) AS NVARCHAR(MAX))");
}

TEST(SqlServerStatement, TheIdentityColumnOfATable) {
  EXPECT_EQ(MakeSqlServerEngine()->IdentitySql("Pratica"),
            "SELECT name FROM sys.columns WHERE object_id = OBJECT_ID('[Pratica]') AND "
            "is_identity = 1");
}

TEST(SqlServerStatement, ATooLongTextIsAnErrorOfTheSessionAndNotCut) {
  const std::vector<std::string> settings = MakeSqlServerEngine()->SessionSettings();
  EXPECT_NE(std::find(settings.begin(), settings.end(), "SET ANSI_WARNINGS ON"), settings.end());
  EXPECT_NE(std::find(settings.begin(), settings.end(), "SET TEXTSIZE 2147483647"), settings.end());
  EXPECT_NE(std::find(settings.begin(), settings.end(), "SET XACT_ABORT OFF"), settings.end());
}

TEST(SqlServerStatement, ASessionThatCannotBeSetUpIsNotUsed) {
  EXPECT_TRUE(MakeSqlServerEngine()->NeedsSessionSettings());
  EXPECT_FALSE(MakeOdbcSqliteEngine()->NeedsSessionSettings());
}

TEST(MakeOdbcEngine, TheEngineIsWhatItSaysItIs) {
  const auto limited = [](const char* name) {
    return MakeOdbcEngine(name)->Limited("SELECT 1", 2);
  };
  EXPECT_EQ(limited("SQLite"), "SELECT 1 LIMIT 2");
  EXPECT_EQ(limited("Microsoft SQL Server"), "SELECT TOP (2) 1");
  EXPECT_EQ(limited("Un altro che parla T-SQL"), "SELECT TOP (2) 1");
  EXPECT_EQ(limited(""), "SELECT TOP (2) 1");
}

// --- token by token -----------------------------------------------------------------------------

TEST(RewriteForSqlServer, ADateBetweenNumberSignsReadsTheSameInEveryLanguage) {
  EXPECT_EQ(Rewritten("#03/05/2024#"), "'20240305'");
  EXPECT_EQ(Rewritten("#3/5/2024 9:30#"), "'20240305 09:30:00'");
}

TEST(RewriteForSqlServer, ATextBetweenNumberSignsThatIsNoDateIsAnError) {
  EXPECT_EQ(DbRaisedBy([] { Rewritten("Data_End =#13/05/2024#"); }),
            DbError("interrogazione rifiutata: #13/05/2024# non è una data (MM/GG/AAAA)"));
}

TEST(RewriteForSqlServer, ADoubleQuotedTextBecomesALiteral) {
  EXPECT_EQ(Rewritten("a = \"l'una\" and b = \"\" and c = \"\"\"\""),
            "a = 'l''una' and b = '' and c = '\"'");
}

TEST(RewriteForSqlServer, OnlyATextThatIsNotAsciiGetsAnN) {
  EXPECT_EQ(Rewritten("a = 'perche' and b = 'perché' and c = '日本 😀'"),
            "a = 'perche' and b = N'perché' and c = N'日本 😀'");
}

TEST(RewriteForSqlServer, AnNThatIsThereIsNotDoubled) {
  ExpectUnchanged("a = N'perché' and b = n'x'");
}

TEST(RewriteForSqlServer, ABackslashBeforeALineEndStays) {
  // The server would drop both.
  EXPECT_EQ(Rewritten("a = 'x\\\r\ny'"), "a = 'x\\'+'\r\ny'");
  EXPECT_EQ(Rewritten("a = 'è\\\ny'"), "a = N'è\\'+N'\ny'");
  ExpectUnchanged("a = 'x\\y' and b = '\\'");
}

TEST(RewriteForSqlServer, UcaseBecomesUpperBeforeAParenthesisOnly) {
  EXPECT_EQ(Rewritten("ucase(a) = UCASE (b)"), "UPPER(a) = UPPER (b)");
  ExpectUnchanged("select ucase from T where Xucase(a) = 1");
}

TEST(RewriteForSqlServer, NothingInsideALiteralAQuotedNameOrACommentIsTouched) {
  ExpectUnchanged("select 'ucase(x) #03/05/2024# \"a\"' from T");
  ExpectUnchanged("select [ucase(x) \"é\"] from T");
  ExpectUnchanged("select 1 -- ucase(x) #1# \"é\"\n from T");
  ExpectUnchanged("select 1 /* ucase(x) 'é' */ from T");
}

}  // namespace
}  // namespace ordex
