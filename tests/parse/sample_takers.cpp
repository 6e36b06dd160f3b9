#include "sample_takers.h"

#include <vector>

namespace ordex::testing {
namespace {

struct LineRange {
  std::size_t first;
  std::size_t last;
  const char* rule;
};

Takers TakersOf(const std::vector<LineRange>& ranges) {
  Takers takers;
  for (const LineRange& range : ranges) {
    for (std::size_t line = range.first; line <= range.last; ++line) takers[line] = range.rule;
  }
  return takers;
}

using TakersByName = std::map<std::string, Takers>;

TakersByName ProfileTakers() {
  return {
      {"profilo-contratto", TakersOf({{23, 23, "numero"},
                                      {24, 28, "campo"},
                                      {32, 43, "campo"},
                                      {47, 47, "campo"},
                                      {49, 49, "campo"},
                                      {51, 53, "campo"},
                                      {58, 61, "campo"},
                                      {65, 65, "scadenze"},
                                      {66, 68, "scadenza"},
                                      {69, 69, "fine scadenze"},
                                      {73, 73, "campo"},
                                      {78, 78, "deposito"},
                                      {79, 79, "data deposito"},
                                      {80, 81, "campo"}})},
      {"profilo-lavoro", TakersOf({{23, 24, "campo"},
                                   {25, 25, "numero"},
                                   {26, 29, "campo"},
                                   {33, 43, "campo"},
                                   {47, 47, "campo"},
                                   {49, 49, "campo"},
                                   {51, 53, "campo"},
                                   {57, 59, "campo"},
                                   {64, 64, "scadenze"},
                                   {65, 66, "scadenza"},
                                   {67, 67, "fine scadenze"},
                                   {71, 73, "campo"}})},
      {"profilo-condominio", TakersOf({{23, 23, "numero"},
                                       {24, 28, "campo"},
                                       {31, 41, "campo"},
                                       {45, 45, "campo"},
                                       {47, 47, "campo"},
                                       {49, 51, "campo"},
                                       {58, 60, "campo"},
                                       {64, 64, "scadenze"},
                                       {65, 66, "scadenza"},
                                       {67, 67, "fine scadenze"},
                                       {70, 70, "scadenze"},
                                       {71, 72, "scadenza"},
                                       {73, 73, "fine scadenze"},
                                       {75, 75, "deposito"},
                                       {76, 76, "data deposito"},
                                       {78, 78, "campo"},
                                       {82, 83, "campo"}})},
  };
}

// Page 1 and 2 of the long history have 15 events, page 3 has 12.
TakersByName HistoryTakers() {
  return {
      {"storico-pagina-1", TakersOf({{26, 26, "intestazione"}, {27, 41, "evento"}})},
      {"storico-pagina-2", TakersOf({{26, 26, "intestazione"}, {27, 41, "evento"}})},
      {"storico-pagina-3", TakersOf({{26, 26, "intestazione"}, {27, 38, "evento"}})},
      {"storico-unica", TakersOf({{26, 26, "intestazione"}, {27, 33, "evento"}})},
      {"storico-lavoro-pagina-2", TakersOf({{26, 26, "intestazione"}, {27, 29, "evento"}})},
  };
}

// The cases on lines 36 and 53 follow the entries of the case before at once.
TakersByName AgendaTakers() {
  return {
      {"agenda-settimana",
       TakersOf({{23, 23, "numero impegni"}, {25, 25, "fascicolo"},    {26, 26, "impegni"},
                 {27, 30, "impegno"},        {31, 31, "fine impegni"}, {32, 32, "fascicolo"},
                 {33, 33, "impegni"},        {34, 35, "impegno"},      {36, 36, "fascicolo"},
                 {37, 37, "impegni"},        {38, 39, "impegno"},      {40, 40, "fine impegni"},
                 {41, 41, "fascicolo"},      {42, 42, "impegni"},      {43, 46, "impegno"},
                 {47, 47, "fine impegni"},   {48, 48, "fascicolo"},    {49, 49, "impegni"},
                 {50, 52, "impegno"},        {53, 53, "fascicolo"},    {54, 54, "impegni"},
                 {55, 56, "impegno"},        {57, 57, "fine impegni"}, {58, 58, "fascicolo"},
                 {59, 59, "impegni"},        {60, 63, "impegno"},      {64, 64, "fine impegni"},
                 {65, 65, "fascicolo"},      {66, 66, "impegni"},      {67, 70, "impegno"},
                 {71, 71, "fine impegni"}})},
      {"agenda-vuota", TakersOf({{23, 23, "numero impegni"}})},
  };
}

TakersByName JusticeOfThePeaceTakers() {
  return {
      {"giudice-di-pace-opposizione", TakersOf({{22, 22, "più campi"},
                                                {24, 24, "inizio dati"},
                                                {25, 25, "più campi"},
                                                {26, 31, "campo"},
                                                {32, 32, "più campi"},
                                                {33, 34, "campo"},
                                                {36, 36, "parti"},
                                                {37, 38, "parte"},
                                                {39, 39, "fine blocco"},
                                                {42, 42, "storico"},
                                                {43, 43, "fine blocco"},
                                                {44, 44, "riga saltata"},
                                                {45, 51, "evento"},
                                                {52, 52, "fine blocco"}})},
      {"giudice-di-pace-sinistro", TakersOf({{22, 22, "inizio dati"},
                                             {23, 24, "più campi"},
                                             {25, 30, "campo"},
                                             {31, 31, "più campi"},
                                             {34, 34, "parti"},
                                             {35, 37, "parte"},
                                             {38, 38, "fine blocco"},
                                             {41, 41, "storico"},
                                             {42, 42, "riga saltata"},
                                             {43, 47, "evento"},
                                             {48, 48, "fine blocco"}})},
  };
}

}  // namespace

const TakersByName& ExpectedTakers() {
  static const TakersByName kTakers = [] {
    TakersByName all = ProfileTakers();
    all.merge(HistoryTakers());
    all.merge(AgendaTakers());
    all.merge(JusticeOfThePeaceTakers());
    return all;
  }();
  return kTakers;
}

}  // namespace ordex::testing
