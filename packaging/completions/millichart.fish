# fish completion for millichart

set -l commands draw new check inspect
set -l before "not __fish_seen_subcommand_from $commands"

complete -c millichart -n $before -f -a draw -d 'Draw chart documents as PNG, SVG or PDF'
complete -c millichart -n $before -f -a new -d 'Write a complete document to start from'
complete -c millichart -n $before -f -a check -d 'Tell what is wrong in chart documents'
complete -c millichart -n $before -f -a inspect -d 'Show layout and drawing calls as JSON'
complete -c millichart -n $before -l version -d 'Show the version'
complete -c millichart -s h -l help -d 'Show the help'

complete -c millichart -n '__fish_seen_subcommand_from draw new' -s o -l output -r -d 'The file to write'
complete -c millichart -n '__fish_seen_subcommand_from draw check inspect' -l data -r -d 'A CSV file that replaces the data'
complete -c millichart -n '__fish_seen_subcommand_from draw' -l format -x -a 'png svg pdf' -d 'Format of the picture'
complete -c millichart -n '__fish_seen_subcommand_from draw' -l dpi -x -a '96 150 300 600' -d 'Dots per inch of a PNG'
complete -c millichart -n '__fish_seen_subcommand_from draw' -l page -x -a '210x297 297x210' -d 'Page in mm'
complete -c millichart -n '__fish_seen_subcommand_from draw' -l background -x -a none -d 'Colour, or none'
complete -c millichart -n '__fish_seen_subcommand_from draw' -l outlines -d 'Texts of an SVG as glyph outlines'
complete -c millichart -n '__fish_seen_subcommand_from draw' -s v -l verbose -d 'Tell which faces are used'
complete -c millichart -n '__fish_seen_subcommand_from check' -l json -d 'As a JSON list of objects'
complete -c millichart -n '__fish_seen_subcommand_from new' -l force -d 'Write over a file that is there already'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a pie -d 'Pie chart'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a half-pie -d 'Half pie'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a half-pie-half-pie -d 'Two half pies round one centre'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a half-pie-histogram -d 'Half pie with bars on it'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a histogram -d 'Bar chart'
complete -c millichart -n '__fish_seen_subcommand_from new' -f -a curve -d 'Line chart'
