; The installer for Windows, for one user and without an administrator: tarvis-VERSION-setup.exe [/S] [/STARTMENU] [/D=FOLDER].
; tools/make_windows_installer gives VERSION, OUTPUT, and the list of files as two scripts, FILES and REMOVAL.
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvis"
Target amd64-unicode ; as the programs
SetCompressor /SOLID lzma
RequestExecutionLevel user
Name "Tarvis ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarvis"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
ShowInstDetails nevershow

!include "FileFunc.nsh"
!include "MUI2.nsh"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tarvis"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installer of the print module Tarvis"
VIAddVersionKey "LegalCopyright" "MIT licence"

Section "Programs" Programs
  SectionIn RO
  !include "${FILES}"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tarvis"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tarvis.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Tarvis maintainers"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; The host starts the program, so that a menu entry is only for those who ask for it.
Section /o "Start menu" StartMenu
  CreateShortCut "$SMPROGRAMS\Tarvis user guide.lnk" "$INSTDIR\doc\user-guide.md"
SectionEnd

Function .onInit
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/STARTMENU" $R1
  IfErrors +2
  SectionSetFlags ${StartMenu} ${SF_SELECTED}
FunctionEnd

; Only what was installed is removed, and the folder only if nothing else is in it.
Section "Uninstall"
  !include "${REMOVAL}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarvis user guide.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
