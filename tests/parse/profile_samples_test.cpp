// What the sample profiles hold besides their rows.
#include <gtest/gtest.h>

#include "import_bench.h"
#include "sample_import.h"

namespace ordex::testing {
namespace {

TEST(ProfileSamples, TheContractCaseGivesItsRegisterNumberAndPageValues) {
  const SampleImport sample("profilo-contratto");
  EXPECT_EQ(sample.page.szNumeroRG, "1842/2025");
  EXPECT_EQ(
      ValuesOf(sample.page.cDatiFasc),
      (NamedValues{
          {"NumeroRegGenerale", "1842/2025"},
          {"DataIscrizione", "14/01/2025"},
          {"Ufficio", "Tribunale Ordinario di Valdombra"},
          {"Sezione", "Seconda Civile"},
          {"Istruttore", "Dott.ssa Bracalenti Ersilia"},
          {"Cancelliere", "Passalenti Rocco"},
          {"Oggetto",
           "Esecuzione specifica dell'obbligo di concludere un contratto: vendita di cosa "
           "immobile"},
          {"CodiceOggetto", "VB-140.062"},
          {"Materia", "Contratti e obbligazioni"},
          {"Rito", "Ordinario"},
          {"TipoProcedimento", "Cognizione di primo grado"},
          {"StatoFascicolo", "In istruttoria"},
          {"ValoreCausa", "€ 186.500,00"},
          {"ContributoUnificato", "€ 759,00 (versato il 13/01/2025 alle 17:05)"},
          {"DataAtto", "20/12/2024"},
          {"DataNotifica", "30/12/2024"},
          {"FascicoliCollegati",
           "3310/2024 (accertamento tecnico); \r\n212/2025 (sequestro conservativo)"},
          {"Attore", "EDILIZIA VALLEBRUNA S.R.L."},
          {"DifAttore", "Ferrigati Nora - Avv. Lumera Ottavio"},
          {"ParteAttrice",
           "EDILIZIA VALLEBRUNA S.R.L. - Avv. Ferrigati Nora - Avv. Lumera Ottavio"},
          {"Convenuto", "IMMOBILIARE PONTEMIRTO S.P.A."},
          {"DifConvenuto", "Brandisio Clelia"},
          {"ParteConvenuta",
           "IMMOBILIARE PONTEMIRTO S.P.A. - Avv. Brandisio Clelia - Avv. Dell'Orsa Guido"},
          {"AltreParti",
           "ASSICURAZIONI ALTAMAREA S.P.A. - Avv. Quarantelli Fosca; \r\nGRESSANI TEODORO; \r\n"
           "CASSA RURALE DI MONTEFOSCO - Avv. Salvadente Pietro"},
          {"DUUd", "18/11/2025 10:15"},
          {"EsitoUdienza",
           "Ammesse le prove per testi; rinvio per l'escussione dei primi due testimoni di parte "
           "attrice"},
          {"DPUd", "12/03/2026 09:30"},
          {"Aula", "Aula 7, piano terra"},
          {"ConsulenteTecnico", "Geom. Tavernari Ulisse"},
          {"NoteCancelleria",
           "Relazione notarile completa, visto del 15/04/2025; \r\nL'originale del contratto "
           "preliminare è custodito nell'armadio n. 3"}}));
}

TEST(ProfileSamples, TheContractCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-contratto");
  EXPECT_EQ(sample.sink.parties,
            (Parties{{"EDILIZIA VALLEBRUNA S.R.L.", "Ferrigati Nora - Avv. Lumera Ottavio"},
                     {"IMMOBILIARE PONTEMIRTO S.P.A.", "Brandisio Clelia"},
                     {"ASSICURAZIONI ALTAMAREA S.P.A.", "Quarantelli Fosca"},
                     {"GRESSANI TEODORO", ""},
                     {"CASSA RURALE DI MONTEFOSCO", "Salvadente Pietro"}}));
}

TEST(ProfileSamples, TheLabourCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-lavoro");
  EXPECT_EQ(sample.page.szNumeroRG, "3056/2025");
  EXPECT_EQ(sample.sink.parties,
            (Parties{{"D'AMICO LUCA", "Ferrigati Nora"},
                     {"LOGISTICA SERRAVENTO S.P.A.", "De Santilli Ippolito"},
                     {"COOPERATIVA FACCHINI L'UNIONE S.C. A R.L.", "Degli Olmi Saverio"},
                     {"SINDACATO AUTONOMO MAGAZZINIERI", ""},
                     {"CONTI DELL'ORTO ADELAIDE", "Ferrigati Nora"}}));
}

TEST(ProfileSamples, TheCondominiumCaseOffersItsFiveParties) {
  const SampleImport sample("profilo-condominio");
  EXPECT_EQ(sample.page.szNumeroRG, "907/2024");
  EXPECT_EQ(sample.sink.parties, (Parties{{"CONDOMINIO VIA DEI TIGLI 14", "Ferrigati Nora"},
                                          {"BALDRACCHI ERMINIA", "Lanzafiorita Ezio"},
                                          {"CARRUBBINI SALVINO", "Ferrigati Nora"},
                                          {"D'AGNOLO E FIGLI S.N.C.", "Lanzafiorita Ezio"},
                                          {"DEL PRATO ANNA", ""}}));
}

}  // namespace
}  // namespace ordex::testing
