; The installer: for the user who runs it, without administrator's rights. build.sh passes VERSION,
; PACK (the folder with what is installed), ICON and OUTPUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel user

!include "MUI2.nsh"
!include "LogicLib.nsh"

Name "Ordex"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Ordex"
InstallDirRegKey HKCU "Software\Ordex" "Cartella"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=1040 "ProductName" "Ordex"
VIAddVersionKey /LANG=1040 "FileDescription" "Installazione di Ordex"
VIAddVersionKey /LANG=1040 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1040 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1040 "LegalCopyright" "Ordex"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Ordex"
; Copies of the mapping files as they were delivered: what differs from them the office has edited.
!define DELIVERED "$INSTDIR\originali"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_TEXT "$Result"
!define MUI_FINISHPAGE_TEXT_LARGE
Var Result
Var KeptFiles

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

; --- files ------------------------------------------------------------------------------------

; SameFile: two files' names on the stack; gives "1" where both are there and hold the same bytes.
!macro DefineSameFile prefix
Function ${prefix}SameFile
  Exch $1
  Exch
  Exch $0
  Push $2
  Push $3
  Push $4
  Push $5
  Push $6
  StrCpy $6 "0"
  ClearErrors
  FileOpen $2 $0 r
  FileOpen $3 $1 r
  ${IfNot} ${Errors}
    StrCpy $6 "1"
    ${Do}
      StrCpy $4 ""
      StrCpy $5 ""
      FileReadByte $2 $4
      FileReadByte $3 $5
      ${If} $4 != $5
        StrCpy $6 "0"
        ${Break}
      ${EndIf}
    ${LoopUntil} $4 == ""
  ${EndIf}
  FileClose $2
  FileClose $3
  ClearErrors
  StrCpy $0 $6
  Pop $6
  Pop $5
  Pop $4
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd
!macroend
!insertmacro DefineSameFile ""
!insertmacro DefineSameFile "un."

; StopIfRunning: a program that is running cannot be replaced, and half an installation helps nobody.
; A program that is just ending, or that a virus scanner has just opened, is given five seconds.
!define TRIES 25
!define TRY_AFTER_MILLISECONDS 200
!macro DefineStopIfRunning prefix
Function ${prefix}StopIfRunning
  Push $0
  Push $1
  StrCpy $1 0
  ${DoWhile} ${FileExists} "$INSTDIR\Ordex.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\Ordex.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      ${Break}
    ${EndIf}
    IntOp $1 $1 + 1
    ${If} $1 < ${TRIES}
      Sleep ${TRY_AFTER_MILLISECONDS}
      ${Continue}
    ${EndIf}
    StrCpy $1 0
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Ordex è in esecuzione. Chiudere la finestra di Ordex e riprovare." /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Abort
    again:
  ${Loop}
  Pop $1
  Pop $0
FunctionEnd
!macroend
!insertmacro DefineStopIfRunning ""
!insertmacro DefineStopIfRunning "un."

; One mapping file: a new one, or one that the office has never edited, becomes the delivered one; an
; edited one stays, and the delivered one is put beside it.
!macro InstallMapping name
  File "/oname=$PLUGINSDIR\${name}.txt" "${PACK}\${name}.txt"
  Push "$INSTDIR\${name}.txt"
  Push "$PLUGINSDIR\${name}.txt"
  Call SameFile
  Pop $1
  Push "$INSTDIR\${name}.txt"
  Push "${DELIVERED}\${name}.txt"
  Call SameFile
  Pop $2
  ${IfNot} ${FileExists} "$INSTDIR\${name}.txt"
  ${OrIf} $1 == "1"
  ${OrIf} $2 == "1"
    CopyFiles /SILENT "$PLUGINSDIR\${name}.txt" "$INSTDIR\${name}.txt"
    Delete "$INSTDIR\${name}.nuovo.txt"
  ${Else}
    CopyFiles /SILENT "$PLUGINSDIR\${name}.txt" "$INSTDIR\${name}.nuovo.txt"
    StrCpy $KeptFiles "$KeptFiles$\r$\n${name}.txt"
  ${EndIf}
  CopyFiles /SILENT "$PLUGINSDIR\${name}.txt" "${DELIVERED}\${name}.txt"
!macroend

!macro UninstallMapping name
  Push "$INSTDIR\${name}.txt"
  Push "${DELIVERED}\${name}.txt"
  Call un.SameFile
  Pop $1
  ${If} $1 == "1"
    Delete "$INSTDIR\${name}.txt"
  ${EndIf}
  Delete "$INSTDIR\${name}.nuovo.txt"
  Delete "${DELIVERED}\${name}.txt"
!macroend

; --- installing -------------------------------------------------------------------------------

Section
  Call StopIfRunning
  InitPluginsDir
  ClearErrors
  SetOutPath "$INSTDIR"
  ${If} ${Errors}
    SetErrorLevel 2
    Abort "Impossibile scrivere nella cartella $INSTDIR."
  ${EndIf}
  File "${PACK}\Ordex.exe"
  File "${PACK}\ordex-console.exe"
  File "${PACK}\Installazione.txt"
  File "${PACK}\Guida.txt"
  File "${PACK}\Mappatura.txt"
  SetOutPath "$INSTDIR\licenze"
  File "${PACK}\licenze\*.txt"
  SetOutPath "$INSTDIR"
  CreateDirectory "${DELIVERED}"
  !insertmacro InstallMapping "MapCampi"
  !insertmacro InstallMapping "MapDelimitatori"
  !insertmacro InstallMapping "MapRestr"

  ; On an Italian keyboard AltGr is Ctrl+Alt, and AltGr+O writes nothing.
  CreateShortCut "$SMPROGRAMS\Ordex.lnk" "$INSTDIR\Ordex.exe" "" "$INSTDIR\Ordex.exe" 0 \
    SW_SHOWNORMAL "CONTROL|ALT|O" "Importa in Praxion la pagina di OrdexWeb che sta negli appunti"

  WriteUninstaller "$INSTDIR\disinstalla.exe"
  WriteRegStr HKCU "Software\Ordex" "Cartella" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Ordex"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Ordex.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\disinstalla.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\disinstalla.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1

  StrCpy $Result "Ordex è installato. Copiare una pagina di OrdexWeb e premere Ctrl+Alt+O."
  ${If} $KeptFiles != ""
    StrCpy $Result "$Result$\r$\n$\r$\nQuesti file di mappatura sono stati modificati dallo studio e restano come sono; accanto c'è la nuova versione, con $\".nuovo$\" nel nome:$KeptFiles"
  ${EndIf}
SectionEnd

; --- uninstalling -----------------------------------------------------------------------------

Section "Uninstall"
  Call un.StopIfRunning
  !insertmacro UninstallMapping "MapCampi"
  !insertmacro UninstallMapping "MapDelimitatori"
  !insertmacro UninstallMapping "MapRestr"
  RMDir "${DELIVERED}"
  Delete "$INSTDIR\Ordex.exe"
  Delete "$INSTDIR\ordex-console.exe"
  Delete "$INSTDIR\Installazione.txt"
  Delete "$INSTDIR\Guida.txt"
  Delete "$INSTDIR\Mappatura.txt"
  RMDir /r "$INSTDIR\licenze"
  Delete "$INSTDIR\disinstalla.exe"
  ; Only where nothing of the office's is left in it.
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Ordex.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Ordex"
SectionEnd
