# SPDX-License-Identifier: MIT
# bash completion for video-converter-cli

_video_converter_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} name
    COMPREPLY=()
    compopt -o nosort
    case $previous in
        --to)
            while IFS= read -r name; do
                # What was typed is compared without its quoting; inside quotes the name needs no other.
                local typed=${current//[\\\"\']/}
                [[ ${name,,} == "${typed,,}"* ]] || continue
                [[ $current == [\"\']* ]] || name=$(printf '%q' "$name")
                COMPREPLY+=("$name")
            done < <("$1" formats --json 2>/dev/null | sed -n 's/^ *"name": "\(.*\)",\{0,1\}$/\1/p')
            return
            ;;
        -d | --folder)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return
            ;;
    esac
    local words="--json --verbose --help"
    if ((COMP_CWORD == 1)); then
        words="formats probe plan convert --help --version"
    else
        case ${COMP_WORDS[1]} in
            plan) words+=" --to --info" ;;
            convert) words+=" --to --output --folder --overwrite" ;;
        esac
    fi
    if [[ $current == -* ]] || ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    elif [[ ${COMP_WORDS[1]} != formats ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$current")
    fi
}
complete -F _video_converter_cli video-converter-cli
