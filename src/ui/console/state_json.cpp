#include "ui/console/state_json.h"

#include <cstddef>

namespace ordex::console {
namespace {

Json FrmMainJson(const Window& window) {
  const Page& page = window.page;
  const HistoryPaging& paging = window.paging;
  return {{"caption", window.frmMain.caption},
          {"height", window.frmMain.height},
          {"iOrdexPage", page.iOrdexPage},
          {"pageAtOpening", page.pageAtOpening},
          {"szNumeroRG", page.szNumeroRG},
          {"iCountPra", window.choice.iCountPra},
          {"lIdPratica", window.choice.lIdPratica},
          {"lIdContab", window.choice.lIdContab},
          {"bConferma", window.commands.bConferma},
          {"bCollegareAna", window.commands.bCollegareAna},
          {"iNrEventiAgenda", page.iNrEventiAgenda},
          {"iPaginaStorico", paging.iPaginaStorico},
          {"iTotPagineStorico", paging.iTotPagineStorico},
          {"iTotEventiStorico", paging.iTotEventiStorico},
          {"bPaginaNuova", paging.bPaginaNuova},
          {"bStoricoVuoto", paging.bStoricoVuoto}};
}

Json PartyBoxJson(const ComboBox& box) {
  Json items = Json::array();
  for (const ComboBox::Item& item : box.items) items.push_back(item.text);
  return {{"items", std::move(items)}, {"index", box.index}, {"toolTip", box.toolTip}};
}

Json UserBoxJson(const ComboBox& box) {
  Json items = Json::array();
  for (const ComboBox::Item& item : box.items) {
    items.push_back({{"text", item.text}, {"itemData", item.itemData}});
  }
  return {{"items", std::move(items)}, {"index", box.index}};
}

Json CounselJson(const KeyedTable& difensori) {
  Json counsel = Json::object();
  for (const KeyedTable::Entry& entry : difensori.Entries()) counsel[entry.key] = entry.value;
  return counsel;
}

Json ReviewListJson(const ReviewList& list) {
  Json columns = Json::array();
  for (const Column& column : list.columns) {
    columns.push_back({{"header", column.header},
                       {"width", column.width},
                       {"icon", static_cast<int>(column.icon)}});
  }
  Json rows = Json::array();
  for (const std::uint32_t place : list.order) rows.push_back(ReviewRowJson(list.rows[place]));
  return {{"visible", list.visible},
          {"columns", std::move(columns)},
          {"rows", std::move(rows)},
          {"toolTip", list.toolTip},
          {"tag", list.tag},
          {"sortKey", list.sortKey},
          {"sortOrder", list.sortOrder == SortOrder::kAscending ? "ascending" : "descending"}};
}

Json AgendaListJson(const AgendaList& list) {
  Json columns = Json::array();
  for (const Column& column : list.columns) {
    columns.push_back({{"header", column.header}, {"width", column.width}});
  }
  Json rows = Json::array();
  for (std::size_t i = 0; i < list.rows.size(); ++i) rows.push_back(AgendaRowJson(list.rows[i]));
  return {{"visible", list.visible},
          {"columns", std::move(columns)},
          {"rows", std::move(rows)},
          {"toolTip", list.toolTip}};
}

Json CaseHeaderJson(const CaseHeader& header) {
  return {{"visible", header.visible},           {"idPra", header.idPra},
          {"numeroRG", header.numeroRG},         {"title", header.title},
          {"descriptions", header.descriptions}, {"penale", header.penale},
          {"idUtente", header.idUtente}};
}

Json PageDataJson(const KeyedTable& cDatiFasc) {
  Json pairs = Json::array();
  for (const KeyedTable::Entry& entry : cDatiFasc.Entries()) {
    pairs.push_back(Json::array({entry.key, entry.value}));
  }
  return pairs;
}

Json CommandsJson(const Commands& commands) {
  const Button& azione = commands.cmdAzione;
  const Button& annulla = commands.cmdAnnulla;
  const ToggleButton& dettagli = commands.chkDettagli;
  return {
      {"cmdAzione",
       {{"caption", azione.caption},
        {"symbol", static_cast<int>(azione.symbol)},
        {"enabled", azione.enabled},
        {"toolTip", azione.toolTip}}},
      {"cmdAnnulla",
       {{"caption", annulla.caption}, {"enabled", annulla.enabled}, {"toolTip", annulla.toolTip}}},
      {"cmdPulisci",
       {{"visible", commands.cmdPulisci.visible}, {"toolTip", commands.cmdPulisci.toolTip}}},
      {"cmdNo", {{"caption", commands.cmdNo.caption}, {"toolTip", commands.cmdNo.toolTip}}},
      {"chkDettagli",
       {{"caption", dettagli.caption},
        {"pressed", dettagli.pressed},
        {"picture", dettagli.picture},
        {"toolTip", dettagli.toolTip}}},
      {"HIWarning", {{"text", commands.HIWarning.caption}}}};
}

}  // namespace

void PrintJsonLine(std::ostream& out, const Json& event) {
  out << event.dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

Json ReviewRowJson(const ReviewRow& row) {
  return {{"text", row.text}, {"sub", row.sub}, {"tag", row.tag}};
}

Json AgendaRowJson(const AgendaRow& row) {
  Json json = {{"text", row.text}, {"sub", Json::array({row.sub})}, {"bold", row.bold}};
  json["color"] = row.color ? Json(*row.color) : Json(nullptr);
  return json;
}

Json StateJson(const Window& window) {
  const CaseChoice& choice = window.choice;
  Json state;
  state["frmMain"] = FrmMainJson(window);
  state["StatusBar"] = {{"picture", window.status.picture}, {"text", window.status.text}};
  state.update(CommandsJson(window.commands));
  state["frameCliente"] = {{"visible", choice.frameCliente.visible}};
  state["frameUtenteCont"] = {{"visible", choice.frameUtenteCont.visible}};
  state["cmbParti"] = Json::array(
      {PartyBoxJson(choice.cmbParti[kBoxClient]), PartyBoxJson(choice.cmbParti[kBoxCounterpart])});
  state["cmbUtenteCont"] = UserBoxJson(choice.cmbUtenteCont);
  state["difensori"] = CounselJson(choice.difensori);
  state["lstImport"] = ReviewListJson(window.lstImport);
  state["lstAgendaAvv"] = AgendaListJson(window.lstAgendaAvv);
  state["ctlTestata1"] = CaseHeaderJson(choice.ctlTestata1);
  state["cDatiFasc"] = PageDataJson(window.page.cDatiFasc);
  state["taggedRows"] = window.lstImport.taggedRows;
  return state;
}

}  // namespace ordex::console
