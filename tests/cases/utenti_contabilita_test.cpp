// The accounting users of the office.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases/case_choice_rules.h"
#include "support/office_fixture.h"

namespace ordex::testing {
namespace {

using Texts = std::vector<std::string>;

Texts Names(const ComboBox& box) {
  Texts names;
  for (const ComboBox::Item& item : box.items) {
    names.push_back(std::to_string(item.itemData) + " " + item.text);
  }
  return names;
}

TEST(LoadUteContabilita, AsksInTheseWords) {
  Office office(Office::Data::kSample);
  CaseChoice choice;
  LoadUteContabilita(office.database(), choice);
  EXPECT_EQ(office.diagnostics.sql,
            (Texts{"Select ID_Utente, NomeUtente from Utenti where TitContabilita = 'TRUE'"}));
}

TEST(LoadUteContabilita, OffersThoseWhoMayHoldTheAccountsAndChoosesTheFirst) {
  Office office(Office::Data::kSample);
  CaseChoice choice;
  LoadUteContabilita(office.database(), choice);
  EXPECT_EQ(Names(choice.cmbUtenteCont), (Texts{"2 SUPERVISORE", "3 FERRIGATI NORA"}));
  EXPECT_EQ(choice.cmbUtenteCont.index, 0);
  EXPECT_EQ(choice.lIdContab, 2);
}

TEST(LoadUteContabilita, FillsTheBoxAfreshEachTime) {
  Office office(Office::Data::kSample);
  CaseChoice choice;
  LoadUteContabilita(office.database(), choice);
  SelectUtenteCont(choice, 1);
  office.Do("UPDATE Utenti SET TitContabilita = 0 WHERE ID_Utente = 2");
  LoadUteContabilita(office.database(), choice);
  EXPECT_EQ(Names(choice.cmbUtenteCont), (Texts{"3 FERRIGATI NORA"}));
  EXPECT_EQ(choice.cmbUtenteCont.index, 0);
  EXPECT_EQ(choice.lIdContab, 3);
}

TEST(LoadUteContabilita, WithoutASingleOneHasNoFirstToChoose) {
  Office office;
  office.Do("UPDATE Utenti SET TitContabilita = 0");
  CaseChoice choice;
  EXPECT_EQ(ErrorNumberOf([&] { LoadUteContabilita(office.database(), choice); }), 9);
}

TEST(CmbUtenteCont, AClickStoresTheChosenUser) {
  Office office(Office::Data::kSample);
  CaseChoice choice;
  LoadUteContabilita(office.database(), choice);
  SelectUtenteCont(choice, 1);
  EXPECT_EQ(choice.lIdContab, 3);
}

TEST(CmbUtenteCont, WithNothingChosenKeepsTheUser) {
  CaseChoice choice;
  choice.lIdContab = 3;
  SelectUtenteCont(choice, ComboBox::kNoChoice);
  EXPECT_EQ(choice.lIdContab, 3);
}

}  // namespace
}  // namespace ordex::testing
