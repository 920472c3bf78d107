# Completion of zelvane for fish.

# Whether there is no verb yet, or the verb is this one.
function __zelvane_has_verb
    set -l words (commandline -opc)
    if test (count $argv) -eq 0
        test (count $words) -lt 2
    else
        test (count $words) -ge 2; and test $words[2] = $argv[1]
    end
end

# Whether the word after "profiles" is this one, or there is none yet.
function __zelvane_profiles_verb
    set -l words (commandline -opc)
    __zelvane_has_verb profiles; or return 1
    test (count $words) -lt 3; and test -z "$argv[1]"; and return 0
    test (count $words) -ge 3; and test $words[3] = "$argv[1]"
end

function __zelvane_profiles
    zelvane profiles --names 2>/dev/null
end

# The words of the program of "run" or "lab", which begins with the first word that is not an option.
function __zelvane_program
    set -l words (commandline -opc)
    set -e words[1..2]
    while set -q words[1]
        switch $words[1]
            case --
                set -e words[1]
                break
            case --profile --backends --journal --devices --frames --seconds --out --jobs --reference --fail-on
                set -e words[1..2]
            case '-*'
                set -e words[1]
            case '*'
                break
        end
    end
    complete -C "$words "(commandline -ct)
end

complete -c zelvane -f
complete -c zelvane -n __zelvane_has_verb -l version -d 'Print the version'
complete -c zelvane -s h -l help -d 'List the options'
complete -c zelvane -n __zelvane_has_verb -a run -d 'Run a program on this library'
complete -c zelvane -n __zelvane_has_verb -a lab -d 'Run a program on every device'
complete -c zelvane -n __zelvane_has_verb -a explain -d 'Show the configs that a list selects, and why'
complete -c zelvane -n __zelvane_has_verb -a info -d 'Print what EGL and OpenGL ES report'
complete -c zelvane -n __zelvane_has_verb -a profiles -d 'List the device profiles'
complete -c zelvane -n __zelvane_has_verb -a use -d 'Choose the device of programs that start from now on'
complete -c zelvane -n __zelvane_has_verb -a strict -d 'Reject contexts that the host does not fully support'
complete -c zelvane -n __zelvane_has_verb -a report -d 'Report the capabilities of this host'
complete -c zelvane -n __zelvane_has_verb -a doctor -d 'Find what keeps programs from running'
complete -c zelvane -n __zelvane_has_verb -a monitor -d 'Show the records of applications'

complete -c zelvane -n '__zelvane_has_verb run' -l profile -xa '(__zelvane_profiles)' -d 'The device of the program'
complete -c zelvane -n '__zelvane_has_verb run' -l strict -d 'Reject contexts that the host does not fully support'
complete -c zelvane -n '__zelvane_has_verb run' -l bare -d 'No device'
complete -c zelvane -n '__zelvane_has_verb run' -l loose -d 'Accept contexts that the host does not fully support'
complete -c zelvane -n '__zelvane_has_verb run' -l backends -xa '(__fish_complete_directories)' -d 'OpenGL ES libraries'
complete -c zelvane -n '__zelvane_has_verb run' -l journal -rF -d 'The file of the journal'
complete -c zelvane -n '__zelvane_has_verb run' -l monitor -d 'Also show the output of the monitor'
complete -c zelvane -n '__zelvane_has_verb run' -a '(__zelvane_program)'

complete -c zelvane -n '__zelvane_has_verb lab' -l devices -xa 'Desktop (__zelvane_profiles)' -d 'These devices'
complete -c zelvane -n '__zelvane_has_verb lab' -l all -d 'All devices'
complete -c zelvane -n '__zelvane_has_verb lab' -l frames -x -d 'End each run after this frame'
complete -c zelvane -n '__zelvane_has_verb lab' -l seconds -x -d 'Or this time after its first frame'
complete -c zelvane -n '__zelvane_has_verb lab' -l out -xa '(__fish_complete_directories)' -d 'The directory of the output'
complete -c zelvane -n '__zelvane_has_verb lab' -l jobs -x -d 'Devices at a time'
complete -c zelvane -n '__zelvane_has_verb lab' -l here -d 'Run on the current display'
complete -c zelvane -n '__zelvane_has_verb lab' -l reference -xa 'Desktop (__zelvane_profiles)' -d 'The device to compare the pictures with'
complete -c zelvane -n '__zelvane_has_verb lab' -l fail-on -xa 'start error refusal lacking picture' -d 'What fails a device'
complete -c zelvane -n '__zelvane_has_verb lab' -a '(__zelvane_program)'

complete -c zelvane -n '__zelvane_has_verb explain' -l profile -xa '(__zelvane_profiles)' -d 'The device'
complete -c zelvane -n '__zelvane_has_verb explain' -l bare -d 'No device'
complete -c zelvane -n '__zelvane_has_verb explain' -l device-rules -d 'Use the rules of the device'
complete -c zelvane -n '__zelvane_has_verb explain' -l json -d 'Print one JSON object'
complete -c zelvane -n '__zelvane_has_verb explain' -a '
    EGL_BUFFER_SIZE= EGL_RED_SIZE= EGL_GREEN_SIZE= EGL_BLUE_SIZE= EGL_LUMINANCE_SIZE= EGL_ALPHA_SIZE=
    EGL_ALPHA_MASK_SIZE= EGL_BIND_TO_TEXTURE_RGB= EGL_BIND_TO_TEXTURE_RGBA= EGL_COLOR_BUFFER_TYPE=
    EGL_COLOR_COMPONENT_TYPE_EXT= EGL_CONFIG_CAVEAT= EGL_CONFIG_ID= EGL_CONFORMANT= EGL_DEPTH_SIZE= EGL_LEVEL=
    EGL_MATCH_NATIVE_PIXMAP= EGL_MAX_PBUFFER_WIDTH= EGL_MAX_PBUFFER_HEIGHT= EGL_MAX_PBUFFER_PIXELS=
    EGL_MAX_SWAP_INTERVAL= EGL_MIN_SWAP_INTERVAL= EGL_NATIVE_RENDERABLE= EGL_NATIVE_VISUAL_ID=
    EGL_NATIVE_VISUAL_TYPE= EGL_RENDERABLE_TYPE= EGL_SAMPLE_BUFFERS= EGL_SAMPLES= EGL_STENCIL_SIZE=
    EGL_SURFACE_TYPE= EGL_TRANSPARENT_TYPE= EGL_TRANSPARENT_RED_VALUE= EGL_TRANSPARENT_GREEN_VALUE=
    EGL_TRANSPARENT_BLUE_VALUE='

complete -c zelvane -n '__zelvane_has_verb info' -l profile -xa '(__zelvane_profiles)' -d 'The device'
complete -c zelvane -n '__zelvane_has_verb info' -l bare -d 'No device'
complete -c zelvane -n '__zelvane_has_verb info' -l json -d 'Print one JSON object'

complete -c zelvane -n '__zelvane_profiles_verb' -l json -d 'Print one JSON object'
complete -c zelvane -n '__zelvane_profiles_verb' -l names -d 'Print only the names'
complete -c zelvane -n '__zelvane_profiles_verb' -a show -d 'Print a profile'
complete -c zelvane -n '__zelvane_profiles_verb' -a check -d 'Check a file'
complete -c zelvane -n '__zelvane_profiles_verb' -a diff -d 'Compare two profiles'
complete -c zelvane -n '__zelvane_profiles_verb' -a import -d 'Install a profile file'
complete -c zelvane -n '__zelvane_profiles_verb' -a export -d 'Print the text of a profile'
complete -c zelvane -n '__zelvane_profiles_verb show' -a '(__zelvane_profiles)'
complete -c zelvane -n '__zelvane_profiles_verb check' -F
complete -c zelvane -n '__zelvane_profiles_verb import' -F
complete -c zelvane -n '__zelvane_profiles_verb import' -l name -x -d 'The name of the profile'
complete -c zelvane -n '__zelvane_profiles_verb import' -l replace -d 'Replace a file of this name'
complete -c zelvane -n '__zelvane_profiles_verb export' -a 'Desktop (__zelvane_profiles)'
complete -c zelvane -n '__zelvane_profiles_verb export' -l replace -d 'Overwrite the file'
complete -c zelvane -n '__zelvane_profiles_verb diff' -Fa '(__zelvane_profiles)'
complete -c zelvane -n '__zelvane_profiles_verb diff' -l json -d 'Print one JSON object'

complete -c zelvane -n '__zelvane_has_verb use' -a '(__zelvane_profiles)'
complete -c zelvane -n '__zelvane_has_verb use' -l none -d 'No device'
complete -c zelvane -n '__zelvane_has_verb use' -l directory -xa '(__fish_complete_directories)' -d 'The directory of profile files'

complete -c zelvane -n '__zelvane_has_verb strict' -a 'on off'

complete -c zelvane -n '__zelvane_has_verb report' -l extensions -d 'List the extensions of the host too'
complete -c zelvane -n '__zelvane_has_verb report' -l json -d 'Print one JSON object'

complete -c zelvane -n '__zelvane_has_verb doctor' -l json -d 'Print one JSON object'

complete -c zelvane -n '__zelvane_has_verb monitor' -l json -d 'Print one JSON object per record'
complete -c zelvane -n '__zelvane_has_verb monitor' -l once -d 'End when the first application ends'
complete -c zelvane -n '__zelvane_has_verb monitor' -l level -xa 'info warning error' -d 'The lowest level of log lines'
complete -c zelvane -n '__zelvane_has_verb monitor' -l process -xa '(__fish_complete_pids)' -d 'Show only this process'
complete -c zelvane -n '__zelvane_has_verb monitor' -l type -x -d 'Show only these records' -a 'log log_info log_warning
    log_error process_hello link_stop window_title back_end back_end_text back_end_marker back_end_record
    back_end_named_text back_end_lists system_report ended'
complete -c zelvane -n '__zelvane_has_verb monitor' -l web -d 'Also serve a page for a browser'
complete -c zelvane -n '__zelvane_has_verb monitor' -l open -d 'Start the browser'
