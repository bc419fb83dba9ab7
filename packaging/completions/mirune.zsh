#compdef mirune
# Completion of mirune for zsh.

_mirune() {
  local -a commands device kind help
  commands=(
    'gallery:list the widget kinds and the families that they offer'
    'timeline:print the entries of a kind, and when it wants to be asked again'
    'placeholder:print the entry that a kind shows before it has data'
    'snapshot:print the entry that a kind shows in the gallery'
    'render:draw one widget into a file'
    'sheet:draw every kind in every family that it offers, on one sheet'
    'tap:mark a task or habit complete'
    'demo:write a sample container around today'
    'doctor:examine the planner'\''s files'
    'device-name:print the marketing name of a device'
    'serve:show the live home screen in a browser'
  )
  device=(
    '--container[folder of the files of the planner]:folder:_files -/'
    '--now[current moment]:moment (2026-11-21T08\:00\:00Z): '
    '--timezone[time zone]:time zone:_mirune_zones'
    '--locale[language and region]:locale (de_DE): '
    '--screen[screen in points]:width x height (390x844): '
    '--system-version[major version of the platform]:version: '
    '--appearance[what the system is set to]:appearance:(light dark)'
    '--redacted[mask what widgets say]'
    '--planner-url[where links of widgets lead to]:URL: '
  )
  kind=(':kind:(mood moods tasks habits events quote calendar combined)')
  help=('(- *)'{-h,--help}'[explain]')

  if ((CURRENT == 2)); then
    if [[ $words[2] == -* ]]; then
      _arguments $help '(- *)--version[print the version]'
    else
      _describe command commands
    fi
    return
  fi
  local command=$words[2]
  shift words
  ((CURRENT--))
  case $command in
    gallery | doctor) _arguments $help '--json[print JSON]' $device ;;
    timeline | placeholder | snapshot) _arguments $help '--json[print JSON]' $device $kind ;;
    render)
      _arguments $help {-o,--output}'[the file, its ending chooses the form]:file:_files' \
        '--at[moment at which the widget is seen]:moment: ' '--scale[pixels per point]:scale (0.1 to 10): ' $device $kind \
        ':family:(systemSmall systemMedium systemLarge systemExtraLarge accessoryCircular accessoryRectangular accessoryInline)'
      ;;
    sheet)
      _arguments $help {-o,--output}'[the file, its ending chooses the form]:file:_files' \
        '--scale[pixels per point]:scale (0.1 to 10): ' '--states[a sheet for each state]' $device
      ;;
    tap)
      _arguments $help '(--clear)--date[date that the mark carries]:moment: ' '(--date)--clear[take the mark back]' \
        $device ':identifier: '
      ;;
    demo)
      _arguments $help ${device[1,3]} '--theme[theme of the planner]:theme:(light dark)' \
        '--keep[do nothing where there is a container]' ':folder:_files -/'
      ;;
    device-name) _arguments $help ':model: ' ;;
    serve)
      _arguments $help '--port[port, 0 takes any that is free]:port: ' '--speed[seconds that pass in each]:seconds: ' \
        '--open[open the address in the browser]' $device
      ;;
  esac
}

_mirune_zones() {
  local -a zones
  zones=(${(f)"$(awk '$1 == "Z" { print $2 } $1 == "L" { print $3 }' /usr/share/zoneinfo/tzdata.zi 2>/dev/null)"})
  compadd -a zones
}

_mirune "$@"
