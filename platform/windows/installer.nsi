; The installer: for one user, without an administrator's rights.
Unicode true
Target amd64-unicode
!include MUI2.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Skerrand"
; Where the start menu's entry lets the program work: its files stay when it is removed.
!define WORK "$LOCALAPPDATA\Skerrand"

Name "Skerrand ${VERSION}"
OutFile "${FILE}"
RequestExecutionLevel user
SetCompressor /SOLID lzma
InstallDir "$LOCALAPPDATA\Programs\Skerrand"
InstallDirRegKey HKCU "${ENTRY}" InstallLocation

!define MUI_ICON "${BUILD}\skerrand.ico"
!define MUI_UNICON "${BUILD}\skerrand.ico"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_UNCONFIRMPAGE_TEXT_TOP \
    "Skerrand will be removed. Your settings and databases in ${WORK} stay."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Section
    SetOutPath "$INSTDIR"
    File "${BUILD}\bin\skerrand.exe" "${BUILD}\bin\skerrand-headless.exe" \
        "${BUILD}\bin\skerrand-simulator.exe" "${BUILD}\bin\make_world.exe" "${BUILD}\README.txt"
    File /r "${BUILD}\bin\data"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ; An entry begins in the folder that is set when it is made.
    SetOutPath "${WORK}"
    CreateShortCut "$SMPROGRAMS\Skerrand.lnk" "$INSTDIR\skerrand.exe"

    WriteRegStr HKCU "${ENTRY}" DisplayName "Skerrand"
    WriteRegStr HKCU "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" DisplayIcon "$INSTDIR\skerrand.exe"
    WriteRegStr HKCU "${ENTRY}" InstallLocation "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" UninstallString '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" NoModify 1
    WriteRegDWORD HKCU "${ENTRY}" NoRepair 1
SectionEnd

Section un.
    ClearErrors
    Delete "$INSTDIR\skerrand.exe"
    IfErrors 0 +3
        MessageBox MB_OK|MB_ICONEXCLAMATION "Please close Skerrand first." /SD IDOK
        Abort
    Delete "$INSTDIR\skerrand-headless.exe"
    Delete "$INSTDIR\skerrand-simulator.exe"
    Delete "$INSTDIR\make_world.exe"
    Delete "$INSTDIR\README.txt"
    RMDir /r "$INSTDIR\data"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    RMDir "${WORK}"
    Delete "$SMPROGRAMS\Skerrand.lnk"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd
