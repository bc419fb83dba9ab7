# Completion of mirune for fish.
complete -c mirune -f
complete -c mirune -s h -l help -d 'Explain'

set -l commands gallery timeline placeholder snapshot render sheet tap demo doctor device-name serve
set -l none "not __fish_seen_subcommand_from $commands"
complete -c mirune -n $none -l version -d 'Print the version'
complete -c mirune -n $none -a gallery -d 'List the widget kinds'
complete -c mirune -n $none -a timeline -d 'Print the entries of a kind'
complete -c mirune -n $none -a placeholder -d 'Print what a kind shows before it has data'
complete -c mirune -n $none -a snapshot -d 'Print what a kind shows in the gallery'
complete -c mirune -n $none -a render -d 'Draw one widget into a file'
complete -c mirune -n $none -a sheet -d 'Draw every widget on one sheet'
complete -c mirune -n $none -a tap -d 'Mark a task or habit complete'
complete -c mirune -n $none -a demo -d 'Write a sample container'
complete -c mirune -n $none -a doctor -d 'Examine the files of the planner'
complete -c mirune -n $none -a device-name -d 'Print the name of a device'
complete -c mirune -n $none -a serve -d 'Show the live home screen'

set -l kinds mood moods tasks habits events quote calendar combined
set -l families systemSmall systemMedium systemLarge systemExtraLarge accessoryCircular accessoryRectangular accessoryInline
set -l zones "(awk '\$1 == \"Z\" { print \$2 } \$1 == \"L\" { print \$3 }' /usr/share/zoneinfo/tzdata.zi 2>/dev/null)"

set -l asks '__fish_seen_subcommand_from timeline placeholder snapshot render'
complete -c mirune -n "$asks; and not __fish_seen_subcommand_from $kinds" -a "$kinds"
complete -c mirune -n "__fish_seen_subcommand_from render; and __fish_seen_subcommand_from $kinds; and not __fish_seen_subcommand_from $families" -a "$families"
complete -c mirune -n '__fish_seen_subcommand_from demo' -a '(__fish_complete_directories)'

complete -c mirune -n '__fish_seen_subcommand_from gallery timeline placeholder snapshot doctor' -l json -d 'Print JSON'
complete -c mirune -n '__fish_seen_subcommand_from render sheet' -s o -l output -r -F -d 'The file; its ending chooses the form'
complete -c mirune -n '__fish_seen_subcommand_from render' -l at -x -d 'Moment at which the widget is seen'
complete -c mirune -n '__fish_seen_subcommand_from render sheet' -l scale -x -d 'Pixels per point'
complete -c mirune -n '__fish_seen_subcommand_from sheet' -l states -d 'A sheet for each state'
complete -c mirune -n '__fish_seen_subcommand_from tap' -l date -x -d 'Date that the mark carries'
complete -c mirune -n '__fish_seen_subcommand_from tap' -l clear -d 'Take the mark back'
complete -c mirune -n '__fish_seen_subcommand_from demo' -l theme -x -a 'light dark' -d 'Theme of the planner'
complete -c mirune -n '__fish_seen_subcommand_from demo' -l keep -d 'Do nothing where there is a container'
complete -c mirune -n '__fish_seen_subcommand_from serve' -l port -x -d 'Port; 0 takes any that is free'
complete -c mirune -n '__fish_seen_subcommand_from serve' -l speed -x -d 'Seconds that pass in each'
complete -c mirune -n '__fish_seen_subcommand_from serve' -l open -d 'Open the address in the browser'

set -l world '__fish_seen_subcommand_from gallery timeline placeholder snapshot render sheet tap doctor serve'
set -l dated '__fish_seen_subcommand_from gallery timeline placeholder snapshot render sheet tap doctor serve demo'
complete -c mirune -n $dated -l container -x -a '(__fish_complete_directories)' -d 'Folder of the files of the planner'
complete -c mirune -n $dated -l now -x -d 'Current moment'
complete -c mirune -n $dated -l timezone -x -a $zones -d 'Time zone'
complete -c mirune -n $world -l locale -x -d 'Language and region'
complete -c mirune -n $world -l screen -x -d 'Screen in points, as 390x844'
complete -c mirune -n $world -l system-version -x -d 'Major version of the platform'
complete -c mirune -n $world -l appearance -x -a 'light dark' -d 'What the system is set to'
complete -c mirune -n $world -l redacted -d 'Mask what widgets say'
complete -c mirune -n $world -l planner-url -x -d 'Where links of widgets lead to'
