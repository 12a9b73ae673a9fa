# What the scripts share: installing packages and running named steps. Sourced, never run; bash only.
# shellcheck shell=bash

# CMake takes the way by which it came for the tree's place, so every way leads to the same one.
unset CDPATH
root=$(cd -P -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/logs

# shellcheck disable=SC2034 # the lists are for the scripts that source this
buildPackages=(cmake ninja-build g++ g++-mingw-w64-x86-64-posix googletest
    nlohmann-json3-dev libcli11-dev
    wine wine64 xvfb util-linux fonts-liberation
    # Wine loads these when they are there, for its windows and its pointer.
    libgl1 libgl1-mesa-dri libxcomposite1 libxcursor1 libxfixes3 libxi6 libxinerama1 libxrandr2 libxrender1)
# shellcheck disable=SC2034
demoPackages=(xcompmgr xdotool x11-utils)
# shellcheck disable=SC2034
packagePackages=(llvm pkgconf python3)
# shellcheck disable=SC2034
checkPackages=(clang-format clang-tidy python3)
# shellcheck disable=SC2034
fuzzPackages=(clang libclang-rt-dev)
# shellcheck disable=SC2034
opinionPackages=(cppcheck python3 valgrind)
# shellcheck disable=SC2034
benchPackages=(libbenchmark-dev gnuplot-nox)
# shellcheck disable=SC2034
coveragePackages=(gcovr)
# shellcheck disable=SC2034
latencyPackages=(libxtst-dev)
# shellcheck disable=SC2034
docsPackages=(doxygen emscripten graphviz libjs-jquery mkdocs python3)
# shellcheck disable=SC2034
docsTestPackages=(aspell aspell-en g++ chromium chromium-driver python3-selenium)
# shellcheck disable=SC2034
bindingPackages=(python3 mono-mcs mono-runtime)
# Node from elsewhere brings npm along and does not go with Debian's npm.
command -v npm >/dev/null || bindingPackages+=(nodejs npm)

say() { printf '%s\n' "$*"; }
fail() { printf '%s: %s\n' "${0##*/}" "$*" >&2; exit 1; }

missing_packages() {
    local package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            printf '%s\n' "$package"
        fi
    done
}

# Installs what is missing of the packages named, as root or by sudo; does nothing at all when everything is there.
install_packages() {
    command -v dpkg-query >/dev/null || fail "this is not a Debian system; install these yourself: $*"
    local missing sudo=()
    mapfile -t missing < <(missing_packages "$@")
    if [ ${#missing[@]} -eq 0 ]; then return 0; fi
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "run it as root, or install these packages first: ${missing[*]}"
        sudo=(sudo)
        # A user who needs no password for commands may still need one for -v.
        sudo -n true 2>/dev/null || sudo -v || fail "sudo refuses; install these packages first: ${missing[*]}"
    fi
    run_step install "Installing ${#missing[@]} Debian packages: ${missing[*]}" \
        apt_install "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -eq 0 ] || fail "still missing after the installation: ${missing[*]}"
}

# Called by install_packages with the command that stands for apt-get; reads its list of missing packages.
apt_install() {
    "$@" update
    "$@" install -y --no-install-recommends "${missing[@]}"
}

# The step that runs, as a process group that a signal to the script ends.
stepPid=''
end_step() {
    if [ -z "$stepPid" ]; then return 0; fi
    kill -TERM -- "-$stepPid" 2>/dev/null || true
    wait "$stepPid" 2>/dev/null || true
    stepPid=''
}
trap 'end_step; exit 130' INT
trap 'end_step; exit 143' TERM
trap 'end_step; exit 129' HUP

# Shows that a step lives: its seconds and last line on a terminal, a line every minute elsewhere.
show_progress() {
    local seconds=$1 log=$2 width=$((${COLUMNS:-$(tput cols 2>/dev/null || echo 80)} - 12))
    if [ -t 1 ]; then
        printf '\r\033[K  %4d s  %s' "$seconds" "$(tail -c 400 "$log" | tr '\r' '\n' | tr -cd '[:print:]\n' |
            grep -v '^ *$' | tail -n 1 | cut -c "1-$width")"
    elif [ $((seconds % 60)) -eq 0 ]; then
        say "  ... $seconds s"
    fi
}

# show_failure LOG: what failed tests said, and the end of the log, which names them all.
show_failure() {
    {
        grep -E -A 40 '\*\*\*(Failed|Timeout|Exception|Not Run)' "$1" | head -n 400 || true
        echo ...
        tail -n 40 "$1"
    } | sed 's/^/  | /'
}

# run_step NAME DESCRIPTION COMMAND...: runs the command with its output in build/logs/NAME.log. A failed step names
# itself and its log, shows what failed and ends the script.
run_step() {
    local name=$1 description=$2 log=$logs/$1.log begin=$SECONDS shown=0 seconds status=0
    shift 2
    mkdir -p "$logs"
    say "$description"
    set -m
    (set -euo pipefail; "$@") </dev/null >"$log" 2>&1 &
    stepPid=$!
    set +m
    while kill -0 "$stepPid" 2>/dev/null; do
        seconds=$((SECONDS - begin))
        if [ "$seconds" -ne "$shown" ]; then
            show_progress "$seconds" "$log" || true
            shown=$seconds
        fi
        sleep 0.2
    done
    wait "$stepPid" || status=$?
    stepPid=''
    if [ -t 1 ]; then printf '\r\033[K'; fi
    if [ "$status" -ne 0 ]; then
        say "FAILED: step $name, status $status. From its log, ${log#"$root"/}:"
        show_failure "$log"
        exit "$status"
    fi
    say "  done in $((SECONDS - begin)) s"
}
