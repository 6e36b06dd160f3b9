-- The tables of the case application that this program reads and writes, for the embedded database.
-- Dates are texts "YYYY-MM-DD HH:MM:SS", bits are 0 and 1. Nothing here goes beyond the engine's
-- built-in features, so that any tool can open the file.

CREATE TABLE Pratica (
  ID_Pra INTEGER PRIMARY KEY AUTOINCREMENT,
  Posizione INT,
  ID_Cliente INT,
  ID_Controparte INT,
  ID_Acp INT,
  DataInizio DATETIME,
  ID_Cla INT,
  ID_FatturareA INT,
  NumPos INT,
  ID_Riservata INT,
  Fk_Gruppo INT,
  ID_Corrispondente INT,
  Cambio FLOAT,
  Valuta TEXT,
  Rilevanza INT,
  ControCognome TEXT,
  AcpCognome TEXT,
  ID_Contab INT,
  NumeroRegGenerale TEXT,
  Sezione TEXT,
  Istruttore TEXT,
  Oggetto TEXT,
  IsPenale BIT DEFAULT 0
);

CREATE TABLE Utenti (
  ID_Utente INTEGER PRIMARY KEY AUTOINCREMENT,
  NomeUtente TEXT,
  TitContabilita BIT DEFAULT 0
);

CREATE TABLE Anagrafica (
  ID_Ana INTEGER PRIMARY KEY AUTOINCREMENT,
  Cognome TEXT,
  Nome TEXT,
  IsFisicaGiuridica BIT DEFAULT 0,
  IsSostitutoImposta BIT DEFAULT 0,
  Cambio FLOAT,
  Valuta TEXT,
  StatoCivile SMALLINT,
  TipoSocieta SMALLINT,
  Categoria TEXT,
  Sesso TEXT,
  LuogoNascita TEXT,
  DataNascita DATETIME,
  CittaRes TEXT,
  IndirizzoRes TEXT,
  NumCivicoRes TEXT,
  PartitaIva TEXT,
  CodiceFiscale TEXT,
  NumeroTel TEXT,
  NumeroFax TEXT,
  Email TEXT
);

-- One text column for each field of mapping/MapCampi.txt, in its order.
CREATE TABLE PraOrdex (
  ID_PraOrdex INTEGER PRIMARY KEY AUTOINCREMENT,
  ID_PraRel INT,
  NumeroRegGenerale TEXT,
  DataIscrizione TEXT,
  Ufficio TEXT,
  Sezione TEXT,
  Istruttore TEXT,
  Oggetto TEXT,
  CodiceOggetto TEXT,
  Materia TEXT,
  Rito TEXT,
  TipoProcedimento TEXT,
  StatoFascicolo TEXT,
  ValoreCausa TEXT,
  ContributoUnificato TEXT,
  Patrocinio TEXT,
  DataAtto TEXT,
  DataNotifica TEXT,
  RuoloPrecedente TEXT,
  FascicoliCollegati TEXT,
  EsitoUdienza TEXT,
  Aula TEXT,
  ConsulenteTecnico TEXT,
  NumeroSentenza TEXT,
  DataSentenza TEXT,
  NumeroCronologico TEXT,
  Cancelliere TEXT,
  NoteCancelleria TEXT,
  ParteAttrice TEXT,
  ParteConvenuta TEXT,
  AltreParti TEXT,
  AttoImpugnato TEXT,
  AutoritaAtto TEXT,
  DataSinistro TEXT,
  LuogoSinistro TEXT,
  DUUd DATETIME,
  DPUd DATETIME,
  DataAcquisizione DATETIME
);

CREATE TABLE EventiPraOrdex (
  ID_Evento INTEGER PRIMARY KEY AUTOINCREMENT,
  ID_PraRel INT,
  Progressivo INT,
  Data TEXT,
  Descrizione TEXT,
  NrPagina TEXT,
  DataAcquisizione DATETIME
);

CREATE TABLE SCADENZE (
  ID_Scadenza INTEGER PRIMARY KEY AUTOINCREMENT,
  Scadenza NVARCHAR(200),
  Priorita INT,
  Data_End DATETIME,
  Data_Start DATETIME,
  IsUdienza BIT DEFAULT 0,
  Codice_Pra INT,
  Codice_Cli INT,
  IsOrdex BIT DEFAULT 0,
  IsMemo BIT DEFAULT 0,
  Parti TEXT,
  Ora TEXT,
  Responsabile TEXT,
  IdResponsabile INT,
  LastLocalUpdate DATETIME
);

-- The register number twice: the routines compare it exactly, the search of the case header looks
-- for its beginning, letter case ignored.
CREATE INDEX Pratica_NumeroRegGenerale ON Pratica (NumeroRegGenerale);
CREATE INDEX Pratica_NumeroRegGenerale_Cerca ON Pratica (NumeroRegGenerale COLLATE NOCASE);
CREATE INDEX Pratica_ID_Cliente ON Pratica (ID_Cliente);
CREATE INDEX Pratica_ID_Controparte ON Pratica (ID_Controparte);
CREATE INDEX Pratica_ControCognome ON Pratica (ControCognome COLLATE NOCASE);
CREATE INDEX Pratica_Oggetto ON Pratica (Oggetto COLLATE NOCASE);
CREATE INDEX Pratica_NumPos ON Pratica (NumPos);
CREATE INDEX Anagrafica_Nome ON Anagrafica (Cognome COLLATE NOCASE, Nome COLLATE NOCASE);
CREATE INDEX PraOrdex_ID_PraRel ON PraOrdex (ID_PraRel);
CREATE INDEX EventiPraOrdex_Progressivo ON EventiPraOrdex (ID_PraRel, Progressivo);
CREATE INDEX SCADENZE_Codice_Pra ON SCADENZE (Codice_Pra);

-- Person 1 stands for nobody, case 1 takes the agenda entries of cases that are not known, and user
-- 2 is the one that the program falls back to.
INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (1, 'NULLO', '');
INSERT INTO Utenti (ID_Utente, NomeUtente, TitContabilita) VALUES (2, 'SUPERVISORE', 1);
INSERT INTO Pratica (ID_Pra, Posizione, ID_Cliente, ID_Controparte, NumPos, ID_Contab)
VALUES (1, 0, 1, 1, 0, 2);
