// A case with the names of its parties, as our own SELECTs read it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/db/connection.h"

namespace ordex {

// To be followed by a WHERE on `p`; read its rows with ReadCaseNames.
inline constexpr std::string_view kSelectCaseNames =
    "SELECT p.ID_Pra, p.NumeroRegGenerale, p.ID_Cliente, c.Cognome, c.Nome, p.ID_Controparte, "
    "k.Cognome, k.Nome, p.ControCognome FROM Pratica p "
    "LEFT JOIN Anagrafica c ON c.ID_Ana = p.ID_Cliente "
    "LEFT JOIN Anagrafica k ON k.ID_Ana = p.ID_Controparte";

struct CaseNames {
  std::int32_t idPra = 0;
  std::string numeroRG;
  // The ids are 0 where no registered person stands there: person 1 stands for nobody.
  std::int32_t idCliente = 0;
  std::string cliente;
  std::int32_t idControparte = 0;
  std::string controparte;

  // Client, counterpart and register number, as far as the case has them:
  // "ROSSI MARIO / BIANCHI S.R.L. - R.G. 12/2024".
  std::string Title() const;
};

inline constexpr std::string_view kBetweenParties = " / ";
inline constexpr std::string_view kBeforeNumber = "R.G. ";

CaseNames ReadCaseNames(const Row& row);

}  // namespace ordex
