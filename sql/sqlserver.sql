-- The tables of the case application that this program reads and writes, on SQL Server: for an EMPTY
-- database of one's own, to try the program with. The tables of the office belong to the case
-- application; this program never makes or alters them.
--
-- To be run as one batch, for instance:  sqlcmd -S SRV -d Prova -E -i sqlserver.sql

SET NOCOUNT ON;
SET XACT_ABORT ON;

IF OBJECT_ID('Pratica') IS NOT NULL OR OBJECT_ID('Anagrafica') IS NOT NULL
   OR OBJECT_ID('Utenti') IS NOT NULL OR OBJECT_ID('PraOrdex') IS NOT NULL
   OR OBJECT_ID('EventiPraOrdex') IS NOT NULL OR OBJECT_ID('SCADENZE') IS NOT NULL
BEGIN
  RAISERROR('In questo database ci sono gia'' tabelle di Praxion: non e'' stato creato nulla.', 16, 1);
  RETURN;
END;

BEGIN TRANSACTION;

CREATE TABLE Pratica (
  ID_Pra INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_Pratica PRIMARY KEY,
  Posizione INT NULL,
  ID_Cliente INT NULL,
  ID_Controparte INT NULL,
  ID_Acp INT NULL,
  DataInizio DATETIME NULL,
  ID_Cla INT NULL,
  ID_FatturareA INT NULL,
  NumPos INT NULL,
  ID_Riservata INT NULL,
  Fk_Gruppo INT NULL,
  ID_Corrispondente INT NULL,
  Cambio FLOAT NULL,
  Valuta NVARCHAR(MAX) NULL,
  Rilevanza INT NULL,
  ControCognome NVARCHAR(MAX) NULL,
  AcpCognome NVARCHAR(MAX) NULL,
  ID_Contab INT NULL,
  NumeroRegGenerale NVARCHAR(MAX) NULL,
  Sezione NVARCHAR(MAX) NULL,
  Istruttore NVARCHAR(MAX) NULL,
  Oggetto NVARCHAR(MAX) NULL,
  IsPenale BIT NULL DEFAULT 0
);

CREATE TABLE Utenti (
  ID_Utente INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_Utenti PRIMARY KEY,
  NomeUtente NVARCHAR(MAX) NULL,
  TitContabilita BIT NULL DEFAULT 0
);

CREATE TABLE Anagrafica (
  ID_Ana INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_Anagrafica PRIMARY KEY,
  Cognome NVARCHAR(MAX) NULL,
  Nome NVARCHAR(MAX) NULL,
  IsFisicaGiuridica BIT NULL DEFAULT 0,
  IsSostitutoImposta BIT NULL DEFAULT 0,
  Cambio FLOAT NULL,
  Valuta NVARCHAR(MAX) NULL,
  StatoCivile SMALLINT NULL,
  TipoSocieta SMALLINT NULL,
  Categoria NVARCHAR(MAX) NULL,
  Sesso NVARCHAR(MAX) NULL,
  LuogoNascita NVARCHAR(MAX) NULL,
  DataNascita DATETIME NULL,
  CittaRes NVARCHAR(MAX) NULL,
  IndirizzoRes NVARCHAR(MAX) NULL,
  NumCivicoRes NVARCHAR(MAX) NULL,
  PartitaIva NVARCHAR(MAX) NULL,
  CodiceFiscale NVARCHAR(MAX) NULL,
  NumeroTel NVARCHAR(MAX) NULL,
  NumeroFax NVARCHAR(MAX) NULL,
  Email NVARCHAR(MAX) NULL
);

-- One text column for each field of mapping/MapCampi.txt, in its order.
CREATE TABLE PraOrdex (
  ID_PraOrdex INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_PraOrdex PRIMARY KEY,
  ID_PraRel INT NULL,
  NumeroRegGenerale NVARCHAR(MAX) NULL,
  DataIscrizione NVARCHAR(MAX) NULL,
  Ufficio NVARCHAR(MAX) NULL,
  Sezione NVARCHAR(MAX) NULL,
  Istruttore NVARCHAR(MAX) NULL,
  Oggetto NVARCHAR(MAX) NULL,
  CodiceOggetto NVARCHAR(MAX) NULL,
  Materia NVARCHAR(MAX) NULL,
  Rito NVARCHAR(MAX) NULL,
  TipoProcedimento NVARCHAR(MAX) NULL,
  StatoFascicolo NVARCHAR(MAX) NULL,
  ValoreCausa NVARCHAR(MAX) NULL,
  ContributoUnificato NVARCHAR(MAX) NULL,
  Patrocinio NVARCHAR(MAX) NULL,
  DataAtto NVARCHAR(MAX) NULL,
  DataNotifica NVARCHAR(MAX) NULL,
  RuoloPrecedente NVARCHAR(MAX) NULL,
  FascicoliCollegati NVARCHAR(MAX) NULL,
  EsitoUdienza NVARCHAR(MAX) NULL,
  Aula NVARCHAR(MAX) NULL,
  ConsulenteTecnico NVARCHAR(MAX) NULL,
  NumeroSentenza NVARCHAR(MAX) NULL,
  DataSentenza NVARCHAR(MAX) NULL,
  NumeroCronologico NVARCHAR(MAX) NULL,
  Cancelliere NVARCHAR(MAX) NULL,
  NoteCancelleria NVARCHAR(MAX) NULL,
  ParteAttrice NVARCHAR(MAX) NULL,
  ParteConvenuta NVARCHAR(MAX) NULL,
  AltreParti NVARCHAR(MAX) NULL,
  AttoImpugnato NVARCHAR(MAX) NULL,
  AutoritaAtto NVARCHAR(MAX) NULL,
  DataSinistro NVARCHAR(MAX) NULL,
  LuogoSinistro NVARCHAR(MAX) NULL,
  DUUd DATETIME NULL,
  DPUd DATETIME NULL,
  DataAcquisizione DATETIME NULL
);

CREATE TABLE EventiPraOrdex (
  ID_Evento INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_EventiPraOrdex PRIMARY KEY,
  ID_PraRel INT NULL,
  Progressivo INT NULL,
  Data NVARCHAR(MAX) NULL,
  Descrizione NVARCHAR(MAX) NULL,
  NrPagina NVARCHAR(MAX) NULL,
  DataAcquisizione DATETIME NULL
);

CREATE TABLE SCADENZE (
  ID_Scadenza INT IDENTITY(1,1) NOT NULL CONSTRAINT PK_SCADENZE PRIMARY KEY,
  Scadenza NVARCHAR(200) NULL,
  Priorita INT NULL,
  Data_End SMALLDATETIME NULL,
  Data_Start SMALLDATETIME NULL,
  IsUdienza BIT NULL DEFAULT 0,
  Codice_Pra INT NULL,
  Codice_Cli INT NULL,
  IsOrdex BIT NULL DEFAULT 0,
  IsMemo BIT NULL DEFAULT 0,
  Parti NVARCHAR(MAX) NULL,
  Ora NVARCHAR(MAX) NULL,
  Responsabile NVARCHAR(MAX) NULL,
  IdResponsabile INT NULL,
  LastLocalUpdate DATETIME NULL
);

CREATE INDEX Pratica_ID_Cliente ON Pratica (ID_Cliente);
CREATE INDEX Pratica_ID_Controparte ON Pratica (ID_Controparte);
CREATE INDEX PraOrdex_ID_PraRel ON PraOrdex (ID_PraRel);
CREATE INDEX EventiPraOrdex_Progressivo ON EventiPraOrdex (ID_PraRel, Progressivo);
CREATE INDEX SCADENZE_Codice_Pra ON SCADENZE (Codice_Pra);

-- Person 1 stands for nobody, case 1 takes the agenda entries of cases that are not known, and user
-- 2 is the one that the program falls back to.
SET IDENTITY_INSERT Anagrafica ON;
INSERT INTO Anagrafica (ID_Ana, Cognome, Nome) VALUES (1, 'NULLO', '');
SET IDENTITY_INSERT Anagrafica OFF;
SET IDENTITY_INSERT Utenti ON;
INSERT INTO Utenti (ID_Utente, NomeUtente, TitContabilita) VALUES (2, 'SUPERVISORE', 1);
SET IDENTITY_INSERT Utenti OFF;
SET IDENTITY_INSERT Pratica ON;
INSERT INTO Pratica (ID_Pra, Posizione, ID_Cliente, ID_Controparte, NumPos, ID_Contab)
VALUES (1, 0, 1, 1, 0, 2);
SET IDENTITY_INSERT Pratica OFF;

COMMIT TRANSACTION;
SET XACT_ABORT OFF;
