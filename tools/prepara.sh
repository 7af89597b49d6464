# shellcheck shell=bash
# What ./run and ./test share; sourced by them with the checkout as the current folder.

# installa_pacchetti LIST [PACKAGE ...]: installs those of the file LIST, and those named, that are missing.
installa_pacchetti() {
    local list=$1 package missing=() as_root=() log
    shift
    for package in $(grep -v '^#' "$list") "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing: ${missing[*]}" >&2
            echo "Run this once as root, or install sudo." >&2
            return 1
        fi
        # Nobody is there to type a password in continuous integration.
        as_root=(sudo ${CI:+-n})
    fi
    echo "Installing ${missing[*]}"
    log=$(mktemp)
    if ! { "${as_root[@]}" apt-get -q update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get -q -y --no-install-recommends install "${missing[@]}"; } >"$log" 2>&1; then
        tail -n 30 "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}

# costruisci PRESET [TARGET ...]: configures and builds; silent but for the build's own progress and errors.
costruisci() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
    cmake --build --preset "$preset" ${1:+--target "$@"}
}
