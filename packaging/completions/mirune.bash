# Completion of mirune for bash.

_mirune_options() {
  local device="--container --now --timezone --locale --screen --system-version --appearance --redacted --planner-url"
  case $1 in
    gallery | timeline | placeholder | snapshot | doctor) echo "--json $device" ;;
    render) echo "-o --output --at --scale $device" ;;
    sheet) echo "-o --output --scale --states $device" ;;
    tap) echo "--date --clear $device" ;;
    demo) echo "--container --now --timezone --theme --keep" ;;
    serve) echo "--port --speed --open $device" ;;
    "") echo "--version" ;;
  esac
  echo "-h --help"
}

_mirune_kinds="mood moods tasks habits events quote calendar combined"
_mirune_families="systemSmall systemMedium systemLarge systemExtraLarge
  accessoryCircular accessoryRectangular accessoryInline"

# The arguments without options and their values: the command, then its own.
_mirune_plain() {
  local i
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --json | --redacted | --states | --clear | --keep | --open | --help | --version | -h) ;;
      -*) ((i++)) ;;
      *) echo "${COMP_WORDS[i]}" ;;
    esac
  done
}

_mirune() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words="" plain
  mapfile -t plain < <(_mirune_plain)
  COMPREPLY=()
  case $before in
    --container)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -d -- "$word")
      return
      ;;
    -o | --output)
      compopt -o filenames 2>/dev/null
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
    --timezone)
      [ ! -r /usr/share/zoneinfo/tzdata.zi ] || words=$(awk '$1 == "Z" { print $2 } $1 == "L" { print $3 }' \
        /usr/share/zoneinfo/tzdata.zi)
      ;;
    --appearance | --theme) words="light dark" ;;
    --now | --at | --date | --locale | --screen | --system-version | --planner-url | --scale | --port | --speed) return ;;
    *)
      if [[ $word == -* ]]; then
        words=$(_mirune_options "${plain[0]-}")
      elif [ ${#plain[@]} -eq 0 ]; then
        words="gallery timeline placeholder snapshot render sheet tap demo doctor device-name serve"
      else
        case ${#plain[@]}:${plain[0]} in
          1:timeline | 1:placeholder | 1:snapshot | 1:render) words=$_mirune_kinds ;;
          2:render) words=$_mirune_families ;;
          1:demo)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return
            ;;
        esac
      fi
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}

complete -F _mirune mirune
