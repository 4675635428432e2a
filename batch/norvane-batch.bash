# Completion of norvane-batch for bash.
_norvane_batch() {
  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  local options="--mode --output --format --decimal --separator --columns --no-header
    --thicknesses --prices --gas-price --oil-price --electricity-price --years --threads --template
    --list-columns --quiet --help --version"
  case $before in
    -m | --mode) mapfile -t COMPREPLY < <(compgen -W "heat-loss compare condensation" -- "$current") ;;
    -f | --format) mapfile -t COMPREPLY < <(compgen -W "csv jsonl xlsx" -- "$current") ;;
    -d | --decimal) mapfile -t COMPREPLY < <(compgen -W "point comma" -- "$current") ;;
    -s | --separator) mapfile -t COMPREPLY < <(compgen -W "comma semicolon tab" -- "$current") ;;
    -c | --columns | -t | --thicknesses | --gas-price | --oil-price | --electricity-price | \
      -y | --years | -j | --threads) COMPREPLY=() ;;
    *)
      if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
      else
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
      fi
      ;;
  esac
}
complete -o filenames -F _norvane_batch norvane-batch
