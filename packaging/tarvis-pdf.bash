# Completion of tarvis-pdf for bash.
_tarvis_pdf() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local names="FileType Made-by DateTime Cover SelectCover DrowCorp DrowSect DrowName DrowEmail DrowZip DrowAdr
    DrowTEL DrowFAX DrowLogo User1Title User1Corp User1Sect User1Name User1Adr User2Title User2Corp User2Sect
    User2Name User2Adr User3Title User3Corp User3Sect User3Name User3Adr GreetingCnt Greeting UserHeader UserOption
    PrmWizHeader TraceHeader TraceOption RealTraceHeader RealTraceOption MechaHeader MechaOption SimHeader SimOption
    ColorType IdxTblHeader IdxTblOption ZoneTblHeader ZoneTblOption JogTblHeader JogTblOption"
  COMPREPLY=()
  case $before in
    --data)
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return ;;
    --options)
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return ;;
    --set)
      compopt -o nospace 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -W "$names" -S = -- "$word")
      return ;;
    --code-page)
      mapfile -t COMPREPLY < <(compgen -W "1252 932 936 949 950 65001" -- "$word")
      return ;;
    --paper)
      mapfile -t COMPREPLY < <(compgen -W "A4 Letter A5" -- "$word")
      return ;;
    --date)
      return ;;
  esac
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "--data --options --set --code-page --paper --date --attach --tagged
      --check --progress --help --version" -- "$word")
    return
  fi
  # Which operand it is: those before it, without options and their values.
  local operand=1 index
  for ((index = 1; index < COMP_CWORD; ++index)); do
    case ${COMP_WORDS[index]} in
      --data | --options | --set | --code-page | --paper | --date) ((++index)) ;;
      -?*) ;;
      *) ((++operand)) ;;
    esac
  done
  case $operand in
    1) mapfile -t COMPREPLY < <(compgen -W "User UPWizard Trace RealTrace Mecha Sim SimEx IdxTbl ZoneTbl JogTbl" \
      -- "$word") ;;
    2) mapfile -t COMPREPLY < <(compgen -W "1 2 4" -- "$word") ;;
    3) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
  esac
}
complete -o filenames -F _tarvis_pdf tarvis-pdf
