# Shared by run, test and bench/run: paths, messages, set-up, builds, the Wine prefix. Sourced, not run.
set -u
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
export WINEPREFIX=$build/wine WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES="mscoree,mshtml="

say() { printf '== %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# install_missing: installs the packages of tools/packages.txt that are not there.
install_missing() {
    local missing=() installed
    installed=$(dpkg-query -W -f='${Package} ${db:Status-Status}\n' 2>/dev/null | awk '$2 == "installed" {print $1}')
    while read -r package; do
        case $package in '' | '#'*) continue ;; esac
        grep -qxF "$package" <<<"$installed" || missing+=("$package")
    done <"$root/tools/packages.txt"
    [ ${#missing[@]} -eq 0 ] && return 0
    say "installing ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "these packages are missing and sudo is not there; as root: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    local log
    log=$(mktemp)
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" >"$log" 2>&1 && return 0
    "${as_root[@]}" apt-get update >>"$log" 2>&1
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "${missing[@]}" >>"$log" 2>&1 ||
        { tail -5 "$log" >&2; fail "apt-get could not install ${missing[*]}; check the network and the package sources"; }
}

# build_preset PRESET [TARGET ...]: configures when needed and builds; prints output only on failure.
build_preset() {
    local preset=$1
    shift
    local log=$build/$preset.log
    mkdir -p "$build"
    if [ ! -f "$build/$preset/build.ninja" ]; then
        (cd "$root" && cmake --preset "$preset") >"$log" 2>&1 || { tail -20 "$log" >&2; fail "configuring preset $preset failed; see $log"; }
    fi
    ninja -C "$build/$preset" "$@" >"$log" 2>&1 || { tail -40 "$log" >&2; fail "building preset $preset failed; see $log"; }
}

# make_prefix: makes the project's own Wine prefix below build/ once; a stamp tells that it is complete.
make_prefix() {
    local stamp=$WINEPREFIX/.complete
    local want
    want=$(cat "$root/tools/wine-prefix" "$root"/tools/wine/*.reg | cksum)
    [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$want" ] && return 0
    say "making the Wine prefix"
    bash "$root/tools/wine-prefix" "$WINEPREFIX" >"$build/wine-prefix.log" 2>&1 || { tail -5 "$build/wine-prefix.log" >&2; fail "the Wine prefix could not be made; see $build/wine-prefix.log"; }
    printf '%s\n' "$want" >"$stamp"
}

# start_display: an X server of our own, unless one was started by an outer script. Sets DISPLAY.
start_display() {
    [ -n "${KTUI_DISPLAY:-}" ] && { export DISPLAY=$KTUI_DISPLAY; return 0; }
    # Two servers that both make this folder at once end with an error, as on a machine where none has run yet.
    mkdir -p -m 1777 /tmp/.X11-unix 2>/dev/null
    local number=$((100 + BASHPID % 400)) tries=0
    while [ -e /tmp/.X$number-lock ]; do number=$((number + 1)); done
    Xvfb ":$number" -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 &
    xvfb_pid=$!
    while [ ! -e /tmp/.X11-unix/X$number ]; do
        tries=$((tries + 1))
        [ $tries -gt 200 ] && fail "Xvfb did not start on display :$number"
        sleep 0.05
    done
    export DISPLAY=:$number KTUI_DISPLAY=:$number
}

# start_wine: a warm Wine server, so that starting a process costs hundredths of a second.
start_wine() {
    wineserver -p >/dev/null 2>&1
    wine cmd /c exit >/dev/null 2>&1 </dev/null
}

# stop_all: ends what start_display and start_wine began.
stop_all() {
    wineserver -k >/dev/null 2>&1
    [ -n "${xvfb_pid:-}" ] && kill "$xvfb_pid" 2>/dev/null
    return 0
}

# on_lane NUMBER COMMAND ...: runs a command with a Wine prefix, a display and a processor of its own, so that lanes run
# side by side and never meet. A program under Wine and Wine's server wait for each other in turn; on one processor tests
# with many windows take about two thirds of the time. Expects the prefix of make_prefix. With lane_graphics=null Wine
# draws nothing, which halves the time of what only opens and closes windows; there are no pixels to look at then.
on_lane() (
    local lane=$1 cpus
    shift
    mapfile -t cpus < <(taskset -cp $BASHPID | sed 's/.*: //' | tr ',' '\n' | awk -F- '{for (i = $1; i <= ($2 == "" ? $1 : $2); ++i) print i}')
    export WINEPREFIX=$build/wine-lane$lane
    unset KTUI_DISPLAY xvfb_pid
    rm -rf "$WINEPREFIX"
    cp -a "$build/wine" "$WINEPREFIX"
    taskset -cp "${cpus[lane % ${#cpus[@]}]}" $BASHPID >/dev/null
    trap stop_all EXIT
    start_display
    if [ -n "${lane_graphics:-}" ]; then
        wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d "$lane_graphics" /f >/dev/null 2>&1 </dev/null
        wineserver -w
    fi
    start_wine
    "$@"
)
