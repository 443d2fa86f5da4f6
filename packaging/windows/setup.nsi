; The setup program. Made by packaging/windows/setup, which gives ARCH (x64 or x86), VERSION, OUTPUT, FILES (what to
; install and to remove, made from the folder dist) and SIZE in KiB.
;
; Installs for the current user, without administrator's rights; with /ALLUSERS, run as administrator, for everybody.
; /S asks nothing, /D=FOLDER (last, without quotes) chooses the folder. Exit codes: 0 done, 1 cancelled, 2 failed.
Unicode true
!if ${ARCH} == x64
  Target amd64-unicode
  !define BITS 64
!else
  Target x86-unicode
  !define BITS 32
!endif
!include LogicLib.nsh
!include FileFunc.nsh
!include MUI2.nsh

!define PRODUCT "KOVAVSFDataGrid"
!define CONTROL "$INSTDIR\KOVAVSFDataGridLib.ocx"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}-${ARCH}"

Name "${PRODUCT} ${VERSION} (${BITS}-bit)"
OutFile "${OUTPUT}"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Setup of ${PRODUCT}, ${BITS}-bit"
VIAddVersionKey LegalCopyright "© The KOVAVSFDataGrid authors"

!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_LICENSE "${LICENSE}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "English"
LangString NeedAdministrator ${LANG_SIMPCHINESE} "要为所有用户安装，请以管理员身份运行安装程序。"
LangString NeedAdministrator ${LANG_ENGLISH} "To install for all users, run the setup as administrator."
LangString NotRegistered ${LANG_SIMPCHINESE} "无法注册控件（代码 $0），没有安装任何内容。"
LangString NotRegistered ${LANG_ENGLISH} "The control could not be registered (code $0). Nothing was installed."
LangString NotUnregistered ${LANG_SIMPCHINESE} "无法取消控件的注册（代码 $0），没有删除任何内容。请再次运行安装程序进行修复，然后重试。"
LangString NotUnregistered ${LANG_ENGLISH} "The control could not be unregistered (code $0). Nothing was removed. Run the setup program again to repair it, then try again."
LangString InUse ${LANG_SIMPCHINESE} "有程序正在使用控件。请关闭使用它的程序，然后重试。"
LangString InUse ${LANG_ENGLISH} "A program is using the control. Close the programs that use it, then try again."

Var ForAll ; 1 for everybody, else empty

!include "${FILES}"

; Sets $ForAll, the folders and the registry's root.
!macro Scope prefix
Function ${prefix}ChooseScope
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/ALLUSERS" $1
  ${IfNot} ${Errors}
    StrCpy $ForAll 1
  ${EndIf}
!if "${prefix}" == "un."
  ; Somebody may start it without the switch.
  ReadRegStr $1 HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $1 == $INSTDIR
    StrCpy $ForAll 1
  ${EndIf}
!endif
  ${If} $ForAll == 1
    SetShellVarContext all
    UserInfo::GetAccountType
    Pop $0
    ${If} $0 != "Admin"
!if "${prefix}" == "un."
      ; Windows' list of programs starts it with the user's own rights.
      ${IfNot} ${Silent}
        ClearErrors
        ExecShell "runas" '"$INSTDIR\uninstall.exe"' "/ALLUSERS"
        ${IfNot} ${Errors}
          Quit
        ${EndIf}
      ${EndIf}
!endif
      MessageBox MB_OK|MB_ICONSTOP "$(NeedAdministrator)" /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
  ${Else}
    SetShellVarContext current
  ${EndIf}
FunctionEnd

; Stops if a program uses the control in $0, as long as nothing was changed. All its programs load this file, and a
; file that is loaded can't be opened to write to it.
Function ${prefix}StopIfInUse
  ${If} ${FileExists} "$0\KOVAVSFDataGridLib.ocx"
    ClearErrors
    FileOpen $1 "$0\KOVAVSFDataGridLib.ocx" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "$(InUse)" /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
    FileClose $1
  ${EndIf}
FunctionEnd

; $0 is what the registration answered, 0 for success. $1 is "/u" to take it away, else empty.
Function ${prefix}Register
  ${If} $ForAll == 1
    ExecWait '"$SYSDIR\regsvr32.exe" /s $1 "${CONTROL}"' $0
  ${Else}
    ExecWait '"$SYSDIR\regsvr32.exe" /s /n $1 /i:user "${CONTROL}"' $0
  ${EndIf}
FunctionEnd
!macroend
!insertmacro Scope ""
!insertmacro Scope "un."

Function .onInit
  Call ChooseScope
  ; An older version is replaced where it is.
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" InstallLocation
  ${If} $INSTDIR == ""
    StrCpy $INSTDIR $0
  ${EndIf}
  ${If} $INSTDIR == ""
    ${If} $ForAll == 1
      StrCpy $INSTDIR "$PROGRAMFILES${BITS}\${PRODUCT}"
    ${Else}
      StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${PRODUCT} ${ARCH}"
    ${EndIf}
  ${EndIf}
FunctionEnd

Section
  SetOverwrite try
  ; Removes an older version as its own setup would, so that no file of it is left.
  ReadRegStr $0 SHCTX "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0\uninstall.exe"
    Call StopIfInUse
    StrCpy $2 ""
    ${If} $ForAll == 1
      StrCpy $2 "/ALLUSERS"
    ${EndIf}
    ExecWait '"$0\uninstall.exe" /S $2 _?=$0' $1
    ${If} $1 <> 0
      ; If a file of it is damaged, it can't unregister itself. All its files are here.
      StrCpy $3 $INSTDIR
      StrCpy $INSTDIR $0
      !insertmacro InstallFiles
      StrCpy $INSTDIR $3
      ExecWait '"$0\uninstall.exe" /S $2 _?=$0' $1
    ${EndIf}
    ${If} $1 <> 0
      MessageBox MB_OK|MB_ICONSTOP "$(InUse)" /SD IDOK
      SetErrorLevel 2
      Abort
    ${EndIf}
    Delete "$0\uninstall.exe"
    RMDir "$0"
  ${EndIf}

  ClearErrors
  !insertmacro InstallFiles
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "$(InUse)" /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
  StrCpy $1 ""
  Call Register
  ${If} $0 <> 0
    !insertmacro RemoveFiles
    RMDir "$INSTDIR"
    MessageBox MB_OK|MB_ICONSTOP "$(NotRegistered)" /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}

  WriteUninstaller "$INSTDIR\uninstall.exe"
  StrCpy $1 ""
  ${If} $ForAll == 1
    StrCpy $1 " /ALLUSERS"
  ${EndIf}
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName "${PRODUCT} (${BITS}-bit)"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "The KOVAVSFDataGrid authors"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"$1'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S$1'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
  CreateShortCut "$SMPROGRAMS\kovagrid (${BITS}-bit).lnk" "$INSTDIR\kovagrid.exe"
SectionEnd

Function un.onInit
  Call un.ChooseScope
FunctionEnd

Section Uninstall
  StrCpy $0 $INSTDIR
  Call un.StopIfInUse
  StrCpy $1 "/u"
  Call un.Register
  ${If} $0 <> 0
    MessageBox MB_OK|MB_ICONSTOP "$(NotUnregistered)" /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
  Delete "$SMPROGRAMS\kovagrid (${BITS}-bit).lnk"
  !insertmacro RemoveFiles
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR" ; only when nobody put a file of his own there
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd
