; The installer of the import tool: puts it into the program folder of the suite.
; Built by packaging/package.cmake, which defines VERSION, COMMIT, FILES (the folder of what to
; install), KILOBYTES and OUTPUT.
;
;   setup.exe                  asks
;   setup.exe /S               silent, into the suite's folder, wherever it is found
;   setup.exe /S /D=C:\Quenda  silent, into that folder
;
; Exit codes, of the uninstaller too: 0 done, 1 cancelled by the user, 2 a file could not be written,
; 3 no suite in the folder, 4 no right to write there, 5 the tool is running.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
CRCCheck on
ManifestDPIAware true
ManifestSupportedOS Win10
; Rights are asked for only when the suite's folder demands them.
RequestExecutionLevel user

!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh
!include x64.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\QuendaImport"
!define UNINSTALLER "uninstall-import.exe"
!define PATHS_FILE "Quendapaths.ini"

!define EXIT_WRITE 2
!define EXIT_NO_SUITE 3
!define EXIT_NO_RIGHT 4
!define EXIT_RUNNING 5

Name "Quenda Import ${VERSION}"
OutFile "${OUTPUT}"
InstallDir ""
BrandingText "Quenda Import ${VERSION} (${COMMIT})"
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey /LANG=1031 "ProductName" "Quenda Import"
VIAddVersionKey /LANG=1031 "CompanyName" "Quenda"
VIAddVersionKey /LANG=1031 "FileDescription" "Quenda Import - Einrichtung"
VIAddVersionKey /LANG=1031 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1031 "ProductVersion" "${VERSION} (${COMMIT})"
VIAddVersionKey /LANG=1031 "LegalCopyright" "Quenda"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_DIRECTORYPAGE_TEXT_TOP "$(FolderText)"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "English"

LangString FolderText ${LANG_GERMAN} \
  "Quenda Import gehört in den Programmordner der Quenda-Suite. Das ist der Ordner, in dem ${PATHS_FILE} liegt."
LangString FolderText ${LANG_ENGLISH} \
  "Quenda Import belongs into the program folder of the Quenda suite: the one that holds ${PATHS_FILE}."
LangString NoSuite ${LANG_GERMAN} \
  "In diesem Ordner liegt keine Quenda-Suite (${PATHS_FILE} fehlt). Bitte wählen Sie den Programmordner der Suite."
LangString NoSuite ${LANG_ENGLISH} \
  "There is no Quenda suite in this folder (${PATHS_FILE} is missing). Please choose the suite's program folder."
LangString Running ${LANG_GERMAN} \
  "Quenda Import läuft gerade. Bitte beenden Sie das Programm, dann geht es weiter."
LangString Running ${LANG_ENGLISH} \
  "Quenda Import is running. Please close it, then this goes on."
LangString NoRight ${LANG_GERMAN} \
  "In diesen Ordner darf nur ein Administrator schreiben."
LangString NoRight ${LANG_ENGLISH} \
  "Only an administrator may write into this folder."
LangString NotWritten ${LANG_GERMAN} \
  "Import.exe konnte nicht ersetzt werden; die bisherige Fassung ist noch da."
LangString NotWritten ${LANG_ENGLISH} \
  "Import.exe could not be replaced; the previous version is still there."
LangString ForeignLanguage ${LANG_GERMAN} \
  "ist nicht von Quenda Import und bleibt, wie es ist. Die Texte von Quenda Import liegen daneben in"
LangString ForeignLanguage ${LANG_ENGLISH} \
  "is not from Quenda Import and stays as it is. The texts of Quenda Import lie beside it in"

; Ends with an exit code; asks nobody when silent.
!macro Fail code text
  ${IfNot} ${Silent}
    MessageBox MB_ICONSTOP|MB_OK "${text}"
  ${EndIf}
  SetErrorLevel ${code}
  Quit
!macroend

; The first folder of the row that holds a suite goes to $INSTDIR.
!macro TryFolder folder
  ${If} $INSTDIR == ""
  ${AndIf} ${FileExists} "${folder}\${PATHS_FILE}"
    StrCpy $INSTDIR "${folder}"
  ${EndIf}
!macroend

; $INSTDIR where this tool has been installed before, in one of the two halves of the registry.
!macro TryRegistry root
  ReadRegStr $0 ${root} "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != ""
    !insertmacro TryFolder $0
  ${EndIf}
!macroend

; Leaves $0 as "1" when files can be made in $INSTDIR, else "0".
!macro TryToWrite
  ClearErrors
  FileOpen $1 "$INSTDIR\import.setup.tmp" w
  ${If} ${Errors}
    StrCpy $0 0
  ${Else}
    FileClose $1
    Delete "$INSTDIR\import.setup.tmp"
    StrCpy $0 1
  ${EndIf}
!macroend

; Leaves $0 as "1" when the program is running (it cannot be opened for writing then), else "0".
!macro IsRunning file
  StrCpy $0 0
  ${If} ${FileExists} "$INSTDIR\${file}"
    ClearErrors
    FileOpen $1 "$INSTDIR\${file}" a
    ${If} ${Errors}
      StrCpy $0 1
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
!macroend

; Waits until the user has closed the program; when silent, ends.
!macro WaitUntilClosed file
  ${Do}
    !insertmacro IsRunning ${file}
    ${If} $0 == 0
      ${ExitDo}
    ${EndIf}
    ${If} ${Silent}
      SetErrorLevel ${EXIT_RUNNING}
      Quit
    ${EndIf}
    MessageBox MB_ICONEXCLAMATION|MB_RETRYCANCEL "$(Running)" IDRETRY +3
    SetErrorLevel ${EXIT_RUNNING}
    Quit
  ${Loop}
!macroend

; The entry under installed programs is the user's own for a folder of the user's own, or where only
; that is allowed; else it is everybody's. Leaves the choice in the shell context.
!macro ChooseContext
  SetShellVarContext current
  StrLen $1 $PROFILE
  StrCpy $1 $INSTDIR $1
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 == "Admin"
  ${AndIf} $1 != $PROFILE
    SetShellVarContext all
  ${EndIf}
!macroend

; Puts a program in place in three steps, so that at every moment a whole one is there: the new one
; beside the old, the old one aside, the new one in.
!macro Replace file
  ClearErrors
  Delete "$INSTDIR\${file}.old"
  File "/oname=${file}.new" "${FILES}\${file}"
  ${If} ${Errors}
    Delete "$INSTDIR\${file}.new"
    !insertmacro Fail ${EXIT_WRITE} "$(NotWritten)"
  ${EndIf}
  Rename "$INSTDIR\${file}" "$INSTDIR\${file}.old"
  ClearErrors
  Rename "$INSTDIR\${file}.new" "$INSTDIR\${file}"
  ${If} ${Errors}
    Rename "$INSTDIR\${file}.old" "$INSTDIR\${file}"
    Delete "$INSTDIR\${file}.new"
    !insertmacro Fail ${EXIT_WRITE} "$(NotWritten)"
  ${EndIf}
  Delete "$INSTDIR\${file}.old"
!macroend

; A language file serves all programs of the suite. One that did not come from here is left alone.
!macro Language name
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "Language_${name}"
  ${If} $0 == "1"
  ${OrIfNot} ${FileExists} "$INSTDIR\base\language_${name}.ini"
    File "${FILES}\base\language_${name}.ini"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" "Language_${name}" "1"
  ${Else}
    DetailPrint "base\language_${name}.ini $(ForeignLanguage) base\language_${name}.import.ini"
    File "/oname=language_${name}.import.ini" "${FILES}\base\language_${name}.ini"
  ${EndIf}
!macroend

!macro RemoveLanguage name
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "Language_${name}"
  ${If} $0 == "1"
    Delete "$INSTDIR\base\language_${name}.ini"
  ${EndIf}
  Delete "$INSTDIR\base\language_${name}.import.ini"
!macroend

Function .onInit
  ${IfNot} ${RunningX64}
    !insertmacro Fail ${EXIT_WRITE} "64 Bit!"
  ${EndIf}
  ; /D= has set $INSTDIR, and then nothing else is looked for.
  !insertmacro TryFolder $EXEDIR
  !insertmacro TryRegistry HKCU
  !insertmacro TryRegistry HKLM
  !insertmacro TryFolder "$PROGRAMFILES64\Quenda"
  !insertmacro TryFolder "$PROGRAMFILES32\Quenda"
  !insertmacro TryFolder "$LOCALAPPDATA\Programs\Quenda"
  !insertmacro TryFolder "C:\Quenda"
  ${If} ${Silent}
    ${IfNot} ${FileExists} "$INSTDIR\${PATHS_FILE}"
    ${OrIf} $INSTDIR == ""
      SetErrorLevel ${EXIT_NO_SUITE}
      Quit
    ${EndIf}
    !insertmacro TryToWrite
    ${If} $0 == 0
      SetErrorLevel ${EXIT_NO_RIGHT}
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

Function LeaveFolder
  ${IfNot} ${FileExists} "$INSTDIR\${PATHS_FILE}"
    MessageBox MB_ICONEXCLAMATION|MB_OK "$(NoSuite)"
    Abort
  ${EndIf}
  !insertmacro TryToWrite
  ${If} $0 == 0
    ; Once more, with the rights that the folder demands.
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 == "Admin"
      MessageBox MB_ICONEXCLAMATION|MB_OK "$(NoRight)"
      Abort
    ${EndIf}
    ClearErrors
    ExecShell "runas" "$EXEPATH" "/D=$INSTDIR"
    ${If} ${Errors}
      MessageBox MB_ICONEXCLAMATION|MB_OK "$(NoRight)"
      Abort
    ${EndIf}
    Quit
  ${EndIf}
FunctionEnd

Section "Quenda Import"
  !insertmacro ChooseContext
  !insertmacro WaitUntilClosed Import.exe
  !insertmacro WaitUntilClosed quenda-import.exe

  SetOverwrite on
  SetOutPath "$INSTDIR"
  !insertmacro Replace Import.exe
  !insertmacro Replace quenda-import.exe

  SetOutPath "$INSTDIR\base"
  !insertmacro Language en
  !insertmacro Language nl

  SetOutPath "$INSTDIR\import-hilfe"
  File "${FILES}\import-hilfe\handbuch.html"
  File "${FILES}\import-hilfe\handbook.html"
  File "${FILES}\import-hilfe\lizenzen.txt"
  File "${FILES}\import-hilfe\aenderungen.txt"

  WriteUninstaller "$INSTDIR\${UNINSTALLER}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "Quenda Import ${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "Quenda"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Import.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  SetShellVarContext current
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $0 != $INSTDIR
    SetShellVarContext all
  ${EndIf}
  !insertmacro TryToWrite
  ${If} $0 == 0
    !insertmacro Fail ${EXIT_NO_RIGHT} "$(NoRight)"
  ${EndIf}
  !insertmacro WaitUntilClosed Import.exe
  !insertmacro WaitUntilClosed quenda-import.exe

  ; Only what was brought; folders only when nothing else is left in them.
  Delete "$INSTDIR\Import.exe"
  Delete "$INSTDIR\quenda-import.exe"
  !insertmacro RemoveLanguage en
  !insertmacro RemoveLanguage nl
  Delete "$INSTDIR\import-hilfe\handbuch.html"
  Delete "$INSTDIR\import-hilfe\handbook.html"
  Delete "$INSTDIR\import-hilfe\lizenzen.txt"
  Delete "$INSTDIR\import-hilfe\aenderungen.txt"
  RMDir "$INSTDIR\import-hilfe"
  RMDir "$INSTDIR\base"
  Delete "$INSTDIR\${UNINSTALLER}"
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
