#include "base/error.h"

#include <gtest/gtest.h>

#include <vector>

namespace ordex {
namespace {

TEST(Error, EveryNumberHasItsItalianWording) {
  const std::vector<std::pair<int, std::string>> wordings = {
      {5, "Chiave non trovata"},
      {6, "Overflow"},
      {9, "Indice non incluso nell'intervallo"},
      {13, "Tipo non corrispondente"},
      {53, "Impossibile trovare il file"},
      {62, "Input oltre la fine del file"},
      {75, "Errore di accesso al file"},
      {94, "Utilizzo non valido di Null"},
      {457, "Chiave già presente"},
      {-2147467259, "Errore del database"},
  };
  for (const auto& [number, wording] : wordings) {
    EXPECT_EQ(Describe(static_cast<ErrorNumber>(number)), wording);
  }
}

TEST(Error, ADetailFollowsTheWordingBehindAColon) {
  EXPECT_EQ(Describe(ErrorNumber::kMissingKey, "\"DELPF1\""), "Chiave non trovata: \"DELPF1\"");
}

TEST(Error, MakeErrorKeepsNumberAndWords) {
  const RunTimeError error = MakeError(ErrorNumber::kTypeMismatch, "\"x\"");
  EXPECT_EQ(error.number(), 13);
  EXPECT_EQ(error.code(), ErrorNumber::kTypeMismatch);
  EXPECT_EQ(error.description(), "Tipo non corrispondente: \"x\"");
}

TEST(Error, WhatIsTheDescription) {
  const RunTimeError error(ErrorNumber::kDatabase, "tabella assente");
  EXPECT_STREQ(error.what(), "tabella assente");
}

TEST(Error, TheReportOfAnEndNamesNumberAndDescription) {
  EXPECT_EQ(ReportText(MakeError(ErrorNumber::kTypeMismatch)),
            "Errore di run-time '13': Tipo non corrispondente");
  EXPECT_EQ(ReportText(RunTimeError(ErrorNumber::kDatabase, "tabella assente")),
            "Errore di run-time '-2147467259': tabella assente");
}

TEST(Error, AFileLineErrorIsARunTimeErrorThatKnowsItsLine) {
  try {
    throw FileLineError(ErrorNumber::kSubscript, "riga senza uguale", 7);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), 9);
    EXPECT_EQ(error.description(), "riga senza uguale");
    const auto* line_error = dynamic_cast<const FileLineError*>(&error);
    ASSERT_NE(line_error, nullptr);
    EXPECT_EQ(line_error->line(), 7U);
  }
}

}  // namespace
}  // namespace ordex
