# bash completion for millichart

_millichart() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  local kinds="pie half-pie half-pie-half-pie half-pie-histogram histogram curve"
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    COMPREPLY=($(compgen -W "draw new check inspect edit --help --version" -- "$current"))
    return
  fi
  case $previous in
    --format)
      COMPREPLY=($(compgen -W "png svg pdf" -- "$current"))
      return
      ;;
    --dpi)
      COMPREPLY=($(compgen -W "96 150 300 600" -- "$current"))
      return
      ;;
    --size)
      COMPREPLY=($(compgen -W "80x60 8x6cm A5 A4-landscape" -- "$current"))
      return
      ;;
    --page)
      COMPREPLY=($(compgen -W "210x297 297x210" -- "$current"))
      return
      ;;
    --background)
      COMPREPLY=($(compgen -W "none" -- "$current"))
      return
      ;;
    --kind)
      COMPREPLY=($(compgen -W "$kinds bar line" -- "$current"))
      return
      ;;
    --legend)
      COMPREPLY=($(compgen -W "none right left top bottom top-left top-right bottom-left bottom-right" -- "$current"))
      return
      ;;
    --sort)
      COMPREPLY=($(compgen -W "ascending descending name" -- "$current"))
      return
      ;;
    --decimal)
      COMPREPLY=($(compgen -W ". ," -- "$current"))
      return
      ;;
  esac
  if [[ $current == -* && $previous != -o && $previous != --output && $previous != --data ]]; then
    local options="--help"
    [ "$command" = edit ] || options+=" --data --query --table --time --value --by --where --sheet --columns --header --no-header --transpose --sort --top --decimal"
    [ "$command" = edit ] || options+=" --title --x-title --y-title --log --stacked --3d --legend --size --set"
    case $command in
      draw)
        options+=" --kind --stream --no-stream --output --format --dpi --page --fit --background --outlines"
        options+=" --strict --quiet --json --jobs --verbose"
        ;;
      new) options+=" --output --force" ;;
      check) options+=" --kind --stream --no-stream --strict --quiet --json" ;;
      inspect) options+=" --kind --stream --no-stream" ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$current"))
  elif [ "$command" = new ] && [ "$COMP_CWORD" -eq 2 ]; then
    COMPREPLY=($(compgen -W "$kinds bar line" -- "$current"))
  else
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen -f -- "$current"))
  fi
}

complete -F _millichart millichart
