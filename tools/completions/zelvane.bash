# Completion of zelvane for bash.

# Adds the names that begin with the word, each quoted for the shell.
_zelvane_profiles() {
    local word=$1 name
    while IFS= read -r name; do
        [[ $name == "$word"* ]] && COMPREPLY+=("$(printf %q "$name")")
    done < <(zelvane profiles --names 2>/dev/null)
}

_zelvane_attributes='
    EGL_BUFFER_SIZE= EGL_RED_SIZE= EGL_GREEN_SIZE= EGL_BLUE_SIZE= EGL_LUMINANCE_SIZE= EGL_ALPHA_SIZE=
    EGL_ALPHA_MASK_SIZE= EGL_BIND_TO_TEXTURE_RGB= EGL_BIND_TO_TEXTURE_RGBA= EGL_COLOR_BUFFER_TYPE=
    EGL_COLOR_COMPONENT_TYPE_EXT= EGL_CONFIG_CAVEAT= EGL_CONFIG_ID= EGL_CONFORMANT= EGL_DEPTH_SIZE= EGL_LEVEL=
    EGL_MATCH_NATIVE_PIXMAP= EGL_MAX_PBUFFER_WIDTH= EGL_MAX_PBUFFER_HEIGHT= EGL_MAX_PBUFFER_PIXELS=
    EGL_MAX_SWAP_INTERVAL= EGL_MIN_SWAP_INTERVAL= EGL_NATIVE_RENDERABLE= EGL_NATIVE_VISUAL_ID=
    EGL_NATIVE_VISUAL_TYPE= EGL_RENDERABLE_TYPE= EGL_SAMPLE_BUFFERS= EGL_SAMPLES= EGL_STENCIL_SIZE=
    EGL_SURFACE_TYPE= EGL_TRANSPARENT_TYPE= EGL_TRANSPARENT_RED_VALUE= EGL_TRANSPARENT_GREEN_VALUE=
    EGL_TRANSPARENT_BLUE_VALUE='

# Completes the program of "run" and its arguments, which begin at the index.
_zelvane_program() {
    local first=$1
    if declare -F _command_offset >/dev/null; then
        _command_offset "$first"
    elif ((COMP_CWORD == first)); then
        mapfile -t COMPREPLY < <(compgen -c -- "${COMP_WORDS[COMP_CWORD]}"; compgen -f -- "${COMP_WORDS[COMP_CWORD]}")
    else
        compopt -o default
    fi
}

_zelvane() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb=${COMP_WORDS[1]} index
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'run lab explain info profiles use strict report doctor monitor --help --version' -- "$word")
        return
    fi

    # "--option=value" is passed as three words.
    [[ $word == = ]] && word=
    [[ $before == = ]] && before=${COMP_WORDS[COMP_CWORD - 2]}
    case $verb:$before in
    run:--profile | explain:--profile | info:--profile) _zelvane_profiles "${word//\\/}"; return ;;
    run:--backends | use:--directory) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    lab:--devices | lab:--reference)
        _zelvane_profiles "${word//\\/}"
        [[ Desktop == "$word"* ]] && COMPREPLY+=(Desktop)
        return
        ;;
    lab:--out) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
    lab:--fail-on) mapfile -t COMPREPLY < <(compgen -W 'start error refusal lacking picture' -- "$word"); return ;;
    profiles:check | profiles:import | run:--journal) compopt -o filenames; mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    profiles:show | profiles:diff) _zelvane_profiles "${word//\\/}"; return ;;
    profiles:export) _zelvane_profiles "${word//\\/}"; [[ Desktop == "$word"* ]] && COMPREPLY+=(Desktop); return ;;
    monitor:--level) mapfile -t COMPREPLY < <(compgen -W 'info warning error' -- "$word"); return ;;
    monitor:--type)
        mapfile -t COMPREPLY < <(compgen -W 'log log_info log_warning log_error process_hello link_stop window_title
            back_end back_end_text back_end_marker back_end_record back_end_named_text back_end_lists system_report
            ended' -- "$word")
        return
        ;;
    monitor:--process) mapfile -t COMPREPLY < <(compgen -W "$(ps -u "$UID" -o pid= 2>/dev/null)" -- "$word"); return ;;
    esac

    if [[ $verb == run || $verb == lab ]]; then
        for ((index = 2; index <= COMP_CWORD; ++index)); do
            case ${COMP_WORDS[index]} in
            --) _zelvane_program $((index + 1)); return ;;
            --profile | --backends | --journal | --devices | --frames | --seconds | --out | --jobs | --reference | --fail-on)
                [[ ${COMP_WORDS[index + 1]-} == = ]] && ((++index)); ((++index)) ;;
            -*) ;;
            '') ((index < COMP_CWORD)) || { _zelvane_program "$index"; return; } ;;
            *) _zelvane_program "$index"; return ;;
            esac
        done
    fi
    local words
    case $verb in
    run) words='--profile --bare --strict --loose --backends --journal --monitor --help' ;;
    lab) words='--devices --all --frames --seconds --out --jobs --here --reference --fail-on --help' ;;
    info) words='--profile --bare --json --help' ;;
    profiles)
        words='show check diff import export --json --names --name --replace --help'
        [[ ${COMP_WORDS[2]} == diff ]] && { _zelvane_profiles "${word//\\/}"; words='--json --help'; }
        ;;
    use) words='--none --directory --help'; [[ $word == -* ]] || _zelvane_profiles "${word//\\/}" ;;
    explain)
        words='--profile --bare --device-rules --json --help'
        [[ $word == -* ]] || { compopt -o nospace; words=$_zelvane_attributes; }
        ;;
    strict) words='on off --help' ;;
    report) words='--extensions --json --help' ;;
    doctor) words='--json --help' ;;
    monitor) words='--json --once --level --process --type --web --open --help' ;;
    esac
    mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _zelvane zelvane
