#include "store/db/odbc_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/db/server_settings.h"

namespace ordex {
namespace {

constexpr const char* k18 = "ODBC Driver 18 for SQL Server";
constexpr const char* k17 = "ODBC Driver 17 for SQL Server";
constexpr const char* kNative = "SQL Server Native Client 11.0";
constexpr const char* kFreeTds = "FreeTDS";

struct Case {
  const char* name;
  const char* driver;
  const char* settings;
  const char* odbc;
};

void PrintTo(const Case& each, std::ostream* out) {
  *out << each.name;
}

class TranslateToOdbcTable : public testing::TestWithParam<Case> {};

TEST_P(TranslateToOdbcTable, GivesTheDriversWords) {
  const ServerSettings settings = ReadServerSettings(GetParam().settings);
  EXPECT_EQ(TranslateToOdbc(settings, GetParam().driver, "/ordex").connectionString,
            GetParam().odbc);
}

const std::vector<Case> kCases = {
    // --- what the program builds of its settings
    {"IntegratedSecurity", k17,
     "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"},
    {"UserAndPassword", k17,
     "Provider=SQLNCLI.1;User ID=sa;Password=segreto;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;UID=sa;PWD=segreto;"},
    {"Driver18DoesNotEncryptUnlessAskedAsTheProviderDid", k18,
     "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={ODBC Driver 18 for SQL Server};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"
     "Encrypt=no;"},
    {"NativeClient", kNative,
     "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={SQL Server Native Client 11.0};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"},
    {"FreeTdsGetsThePortAndACharacterSet", kFreeTds,
     "Provider=SQLNCLI.1;User ID=sa;Password=segreto;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={FreeTDS};Server=SRV;Port=1433;Database=Zelmo32;UID=sa;PWD=segreto;"
     "ClientCharset=UTF-8;"},
    {"FreeTdsWithTheUserOfTheSystem", kFreeTds,
     "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={FreeTDS};Server=SRV;Port=1433;Database=Zelmo32;Trusted_Connection=Yes;"
     "ClientCharset=UTF-8;"},
    // --- other names of the keys
    {"UidAndPwd", k17, "UID=sa;PWD=x;Database=Zelmo32;Server=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;UID=sa;PWD=x;"},
    {"TrustedConnection", k17, "Trusted_Connection=yes;Initial Catalog=Zelmo32;Server=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"},
    {"IntegratedSecurityTrue", k17, "Integrated Security=True;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Trusted_Connection=Yes;"},
    {"IntegratedSecurityNo", k17, "Integrated Security=no;User ID=u;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    {"TheUserOfWindowsGoesBeforeAPassword", k17,
     "Integrated Security=SSPI;User ID=u;Password=p;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Trusted_Connection=Yes;"},
    {"PersistSecurityInfoIsDropped", k17,
     "Persist Security Info=False;Integrated Security=SSPI;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Trusted_Connection=Yes;"},
    {"Address", k17, "Address=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    {"NetworkAddress", k17, "Network Address=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    {"TheLastServerCounts", k17, "Data Source=A;Server=B;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=B;UID=u;"},
    {"AnyLetterCase", k17, "INTEGRATED security=sspi;initial CATALOG=Zelmo32;DATA source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"},
    {"AKeyOfNoMeaningIsDropped", k17, "Data Source=SRV;UID=u;Qualche Cosa=7",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    {"KeysOfTheProviderAloneAreDropped", k17,
     "Data Source=SRV;UID=u;Auto Translate=True;Packet Size=4096;Use Procedure for Prepare=1;"
     "DataTypeCompatibility=80;OLE DB Services=-2",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    // --- the server's name
    {"Instance", k17, "Data Source=SRV\\PRAXION;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV\\PRAXION;UID=u;"},
    {"Port", k17, "Data Source=SRV,1433;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV,1433;UID=u;"},
    {"PortWithBlanks", k17, "Data Source= SRV , 1433 ;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV,1433;UID=u;"},
    {"InstanceAndPort", k17, "Data Source=SRV\\PRAXION,1500;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV\\PRAXION,1500;UID=u;"},
    {"TcpInFront", k17, "Data Source=TCP:SRV,1433;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=tcp:SRV,1433;UID=u;"},
    {"LocalInParentheses", k17, "Data Source=(local);UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=(local);UID=u;"},
    {"ADot", k17, "Data Source=.\\SQLEXPRESS;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=.\\SQLEXPRESS;UID=u;"},
    {"ANamedPipe", k17, "Data Source=np:\\\\SRV\\pipe\\sql\\query;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=np:\\\\SRV\\pipe\\sql\\query;UID=u;"},
    {"NetworkLibraryOfTcp", k17, "Network Library=DBMSSOCN;Data Source=SRV,1433;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=tcp:SRV,1433;UID=u;"},
    {"NetworkLibraryOfPipes", k17, "Network Library=dbnmpntw;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=np:SRV;UID=u;"},
    {"ThePrefixGoesBeforeTheNetworkLibrary", k17, "Net=dbnmpntw;Data Source=tcp:SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=tcp:SRV;UID=u;"},
    {"FreeTdsInstance", kFreeTds, "Data Source=SRV\\PRAXION;UID=u",
     "Driver={FreeTDS};Server=SRV\\PRAXION;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsPort", kFreeTds, "Data Source=SRV,1500;UID=u",
     "Driver={FreeTDS};Server=SRV;Port=1500;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsPortGoesBeforeTheInstance", kFreeTds, "Data Source=SRV\\PRAXION,1500;UID=u",
     "Driver={FreeTDS};Server=SRV;Port=1500;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsTcpInFront", kFreeTds, "Data Source=tcp:SRV,1500;UID=u",
     "Driver={FreeTDS};Server=SRV;Port=1500;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsLocalInParentheses", kFreeTds, "Data Source=(LOCAL);UID=u",
     "Driver={FreeTDS};Server=localhost;Port=1433;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsADot", kFreeTds, "Data Source=.;UID=u",
     "Driver={FreeTDS};Server=localhost;Port=1433;UID=u;ClientCharset=UTF-8;"},
    {"FreeTdsPipeOfAnInstance", kFreeTds,
     "Data Source=np:\\\\SRV\\pipe\\MSSQL$PRAXION\\sql\\query;UID=u",
     "Driver={FreeTDS};Server=SRV\\PRAXION;UID=u;ClientCharset=UTF-8;"},
    // --- encryption and the rest
    {"EncryptTrue", k18, "Encrypt=True;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 18 for SQL Server};Server=SRV;UID=u;Encrypt=yes;"},
    {"EncryptStrict", k18, "Encrypt=Strict;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 18 for SQL Server};Server=SRV;UID=u;Encrypt=strict;"},
    {"AnOlderDriverDoesNotKnowStrict", k17, "Encrypt=Strict;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;Encrypt=yes;"},
    {"UseEncryptionForData", k17, "Use Encryption for Data=False;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;Encrypt=no;"},
    {"TrustServerCertificate", k18, "Encrypt=yes;TrustServerCertificate=True;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 18 for SQL Server};Server=SRV;UID=u;Encrypt=yes;"
     "TrustServerCertificate=yes;"},
    {"TrustServerCertificateInThreeWords", k18,
     "Trust Server Certificate=false;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 18 for SQL Server};Server=SRV;UID=u;Encrypt=no;"
     "TrustServerCertificate=no;"},
    {"FreeTdsEncrypts", kFreeTds, "Encrypt=yes;TrustServerCertificate=yes;Data Source=SRV;UID=u",
     "Driver={FreeTDS};Server=SRV;Port=1433;UID=u;Encryption=require;ClientCharset=UTF-8;"},
    {"ApplicationAndWorkstation", k17,
     "Application Name=Praxion;Workstation ID=PC 7;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;APP=Praxion;WSID=PC 7;"},
    {"Mars", k17, "MARS Connection=True;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;MARS_Connection=yes;"},
    {"MarsByItsOtherName", k17, "MultipleActiveResultSets=false;Data Source=SRV;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;MARS_Connection=no;"},
    {"FreeTdsNeedsNoMars", kFreeTds, "MARS Connection=True;Data Source=SRV;UID=u",
     "Driver={FreeTDS};Server=SRV;Port=1433;UID=u;ClientCharset=UTF-8;"},
    {"FailoverPartnerAndIntent", k17,
     "Failover Partner=SRV2;ApplicationIntent=ReadWrite;MultiSubnetFailover=Yes;Data Source=SRV;"
     "UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;Failover_Partner=SRV2;"
     "ApplicationIntent=ReadWrite;MultiSubnetFailover=yes;"},
    {"LanguageAndFile", k17, "Current Language=Italian;AttachDBFileName=C:\\d b.mdf;Server=S;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=S;UID=u;Language=Italian;"
     "AttachDBFileName=C:\\d b.mdf;"},
    // --- quotes, braces, semicolons
    {"APasswordInQuotes", k17, "Data Source=SRV;UID=u;Password=\"a'b=c\"",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD=a'b=c;"},
    {"APasswordWithASemicolonIsBraced", k17, "Data Source=SRV;UID=u;Password='a;b}c'",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD={a;b}}c};"},
    {"APasswordInBraces", k17, "Data Source=SRV;UID=u;PWD={a;b}",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD={a;b};"},
    {"APasswordThatBeginsWithABraceIsBraced", k17, "Data Source=SRV;UID=u;Password='{a'",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD={{a};"},
    {"BlanksAtTheEndsOfAPasswordStay", k17, "Data Source=SRV;UID=u;Password=' a '",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD={ a };"},
    {"FreeTdsTakesWhatStandsInBracesAsItIs", kFreeTds, "Data Source=SRV;UID=u;Password='a;b}c'",
     "Driver={FreeTDS};Server=SRV;Port=1433;UID=u;PWD={a;b}c};ClientCharset=UTF-8;"},
    {"AnEqualSignInAPasswordIsAPartOfIt", k17, "Data Source=SRV;UID=u;Password=xServer=y",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD=xServer=y;"},
    {"DoubledSemicolons", k17, ";;Data Source=SRV;;;UID=u;;",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;"},
    {"TheSecurityFragmentBeginsWithoutASemicolon", k17,
     "Provider=SQLNCLI.1Integrated Security=SSPI;Initial Catalog=Zelmo32;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;Trusted_Connection=Yes;"},
    {"TheSecurityFragmentEndsWithoutASemicolon", k17,
     "Provider=SQLNCLI.1;User ID=u;Password=pInitial Catalog=Zelmo32;Data Source=SRV",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;UID=u;PWD=p;"},
    {"ASemicolonMissingInTheServerFragment", k17,
     "Initial Catalog=Zelmo32;Data Source=SRV Password=p;UID=u",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;Database=Zelmo32;UID=u;PWD=p;"},
    {"BlanksEverywhere", k17, " Data Source = SRV ; User ID = u ; Password = p ",
     "Driver={ODBC Driver 17 for SQL Server};Server=SRV;UID=u;PWD=p;"},
    // --- a driver that the settings name
    {"ANamedDriverGoesBeforeTheChosenOne", k18,
     "Driver={SQL Server};Data Source=SRV;Integrated Security=SSPI",
     "Driver={SQL Server};Server=SRV;Trusted_Connection=Yes;"},
    {"ANamedDriverGetsItsOwnWords", k18,
     "Driver=FreeTDS;Data "
     "Source=SRV;UID=u;PWD=p;Port=1500;TDS_Version=7.4;ClientCharset=ISO-8859-1",
     "Driver={FreeTDS};Server=SRV;UID=u;PWD=p;Port=1500;TDS_Version=7.4;"
     "ClientCharset=ISO-8859-1;"},
    {"TheEmbeddedFileThroughItsDriver", k18,
     "Provider=SQLNCLI.1;Integrated Security=SSPI;Initial Catalog=Zelmo32;Driver={SQLite3};"
     "Data Source=file:office.db",
     "Driver={SQLite3};Database=/ordex/office.db;NoCreat=1;Timeout=5000;"},
    {"TheEmbeddedFileAsADatabase", k18,
     "Initial Catalog=Zelmo32;Driver={SQLite3};Database=/dati/o.db;Timeout=20;StepAPI=1",
     "Driver={SQLite3};Database=/dati/o.db;NoCreat=1;Timeout=20;StepAPI=1;"},
};

std::string CaseName(const testing::TestParamInfo<Case>& tested) {
  return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Strings, TranslateToOdbcTable, testing::ValuesIn(kCases), CaseName);

TEST(TranslateToOdbc, TheTableHoldsAtLeastFortyStrings) {
  EXPECT_GE(kCases.size(), 40U);
}

TEST(TranslateToOdbc, TheTimeOutOfTheConnectionIsAnAttributeAndNoWord) {
  const auto seconds = [](const char* settings) {
    return TranslateToOdbc(ReadServerSettings(settings), k17, ".").loginTimeOut;
  };
  EXPECT_EQ(seconds("Data Source=SRV;Connect Timeout=60"), 60U);
  EXPECT_EQ(seconds("Data Source=SRV;Connection Timeout=5"), 5U);
  EXPECT_EQ(seconds("Data Source=SRV"), 15U);
  EXPECT_EQ(seconds("Data Source=SRV;Connect Timeout=molti"), 15U);
}

TEST(TranslateToOdbc, WhatIsShownIsTheServerAndNeverAPassword) {
  const OdbcTarget target =
      TranslateToOdbc(ReadServerSettings("Data Source=SRV\\X Password=segreto"), k17, ".");
  EXPECT_EQ(target.shown, "SRV\\X");
  EXPECT_EQ(target.password, "segreto");
}

TEST(ChooseDriver, TheNewestOfTheInstalledOnesIsTaken) {
  const std::vector<std::string> all = {"SQL Server", kNative, k17, k18,
                                        "ODBC Driver 13 for SQL Server"};
  EXPECT_EQ(ChooseDriver(all, false), k18);
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{"SQL Server", k17, kNative}, false), k17);
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{"SQL Server", kNative}, false), kNative);
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{"SQLite3", "SQL Server"}, false), "SQL Server");
}

TEST(ChooseDriver, ANumberCountsAsANumber) {
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{"ODBC Driver 9 for SQL Server", k17}, false),
            k17);
}

TEST(ChooseDriver, OutsideOfWindowsFreeTdsIsTakenWhereItIs) {
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{k18, "freetds"}, true), "freetds");
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{k18}, true), k18);
  EXPECT_EQ(ChooseDriver(std::vector<std::string>{"SQLite3"}, true), "");
}

}  // namespace
}  // namespace ordex
