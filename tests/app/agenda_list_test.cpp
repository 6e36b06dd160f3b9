// The agenda list.
#include <gtest/gtest.h>

#include "app/review_lists.h"

namespace ordex::testing {
namespace {

TEST(AgendaList, HasTwoColumnsOfWhichTheSecondTakesTheRest) {
  AgendaList list;
  SetWidthlstAgenda(list);
  EXPECT_EQ(list.columns[0].header, "Registro Generale\\Data");
  EXPECT_EQ(list.columns[1].header, "Descrizione\\Descrizione");
  EXPECT_EQ(list.columns[0].width, 2400);
  EXPECT_EQ(list.columns[1].width, 9060);  // 11760 less 2400 and 300
}

TEST(AgendaList, ShowsACaseBoldInTheDefaultColour) {
  AgendaList list;
  AggiungiRigaAgenda(list, "12/2026", "ROSSI / BIANCHI", true);
  ASSERT_EQ(list.rows.size(), 1U);
  EXPECT_EQ(list.rows[0].text, "12/2026");
  EXPECT_EQ(list.rows[0].sub, "ROSSI / BIANCHI");
  EXPECT_TRUE(list.rows[0].bold);
  EXPECT_FALSE(list.rows[0].color.has_value());
}

TEST(AgendaList, ShowsAnEntryPlainInDarkRed) {
  AgendaList list;
  AggiungiRigaAgenda(list, "    12/03/2026", "    Udienza", false);
  ASSERT_EQ(list.rows.size(), 1U);
  EXPECT_EQ(list.rows[0].text, "    12/03/2026");
  EXPECT_EQ(list.rows[0].sub, "    Udienza");
  EXPECT_FALSE(list.rows[0].bold);
  EXPECT_EQ(list.rows[0].color, 0xC0);
}

TEST(AgendaList, ShowsBothTextsOfAClickedRowAsToolTip) {
  AgendaList list;
  AggiungiRigaAgenda(list, "12/2026", "ROSSI / BIANCHI", true);
  AggiungiRigaAgenda(list, "    12/03/2026", "    Udienza", false);
  lstAgendaAvv_ItemClick(list, 2);
  EXPECT_EQ(list.toolTip, "    12/03/2026 -     Udienza");
}

}  // namespace
}  // namespace ordex::testing
