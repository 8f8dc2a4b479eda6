# bash completion for millichart

_millichart() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[1]}
  COMPREPLY=()
  if [ "$COMP_CWORD" -eq 1 ]; then
    COMPREPLY=($(compgen -W "draw new check inspect --help --version" -- "$current"))
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
    --page)
      COMPREPLY=($(compgen -W "210x297 297x210" -- "$current"))
      return
      ;;
    --background)
      COMPREPLY=($(compgen -W "none" -- "$current"))
      return
      ;;
  esac
  if [[ $current == -* && $previous != -o && $previous != --output && $previous != --data ]]; then
    local options="--help"
    case $command in
      draw) options+=" --output --format --data --dpi --page --background --outlines --verbose" ;;
      new) options+=" --output --force" ;;
      check) options+=" --data --json" ;;
      inspect) options+=" --data" ;;
    esac
    COMPREPLY=($(compgen -W "$options" -- "$current"))
  elif [ "$command" = new ] && [ "$COMP_CWORD" -eq 2 ]; then
    COMPREPLY=($(compgen -W "pie half-pie half-pie-half-pie half-pie-histogram histogram curve" -- "$current"))
  else
    local IFS=$'\n'
    compopt -o filenames 2>/dev/null
    COMPREPLY=($(compgen -f -- "$current"))
  fi
}

complete -F _millichart millichart
