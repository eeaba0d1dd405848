#!/bin/bash
# Installs what regdesk needs on Debian 12, builds it, and either starts it on
# the demo bus (demo) or runs every test (test).
set -euo pipefail
cd "$(dirname "$0")/.."
ROOT=$PWD
JOBS=$(nproc)

PACKAGES=(
    build-essential cmake ninja-build pkg-config clang
    qt6-base-dev qt6-base-dev-tools qt6-serialport-dev qt6-tools-dev qt6-tools-dev-tools
    qt6-l10n-tools libgl-dev
    libmodbus-dev python3-pymodbus mbpoll socat valgrind
    xvfb xauth
)

install_packages() {
    local missing=()
    for p in "${PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
    done
    if ((${#missing[@]})); then
        local sudo=""
        [ "$(id -u)" = 0 ] || sudo=sudo
        $sudo apt-get update
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y "${missing[@]}"
    fi
}

build() { # build <dir> [cmake options...]
    local dir=$1; shift
    cmake -S "$ROOT" -B "$dir" -G Ninja "$@" >/dev/null
    cmake --build "$dir" -j "$JOBS"
}

run_tests() { # run_tests <dir> [ctest options...]
    local dir=$1; shift
    (cd "$dir" && ctest --output-on-failure -j "$JOBS" "$@")
}

demo() {
    build "$ROOT/build"
    local work="$ROOT/build/demo"
    mkdir -p "$work/cfg"
    local sim_pid=""
    if [ -x "$ROOT/build/tools/regdesk-sim/regdesk-sim" ] && [ -f "$ROOT/res/demo/demo-scenario.json" ]; then
        "$ROOT/build/tools/regdesk-sim/regdesk-sim" --scenario "$ROOT/res/demo/demo-scenario.json" \
            --link /tmp/ttyREGDESK0 &
        sim_pid=$!
        trap '[ -n "$sim_pid" ] && kill "$sim_pid" 2>/dev/null' EXIT
    fi
    if [ -f "$ROOT/res/demo/demo.cfg" ] && [ ! -f "$work/cfg/regdeskcfg.cfg" ]; then
        cp "$ROOT/res/demo/demo.cfg" "$work/cfg/regdeskcfg.cfg"
    fi
    cd "$work"
    if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
        echo "No display: starting regdesk under Xvfb" >&2
        xvfb-run -a "$ROOT/build/src/regdesk"
    else
        "$ROOT/build/src/regdesk"
    fi
}

test_all() {
    build "$ROOT/build"
    build "$ROOT/build-asan" -DCMAKE_BUILD_TYPE=Debug -DREGDESK_SANITIZE=address,undefined
    # Only the threaded tests (label tsan) are built and run under ThreadSanitizer.
    cmake -S "$ROOT" -B "$ROOT/build-tsan" -G Ninja -DREGDESK_SANITIZE=thread >/dev/null
    cmake --build "$ROOT/build-tsan" -j "$JOBS" --target regdesk_tsan_tests
    local status=0
    echo "=== sanitizers: thread (polling and downloads) ==="
    TSAN_OPTIONS=halt_on_error=1 run_tests "$ROOT/build-tsan" -L tsan --no-tests=ignore || status=1
    echo "=== sanitizers: address, undefined ==="
    ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 run_tests "$ROOT/build-asan" || status=1
    echo "=== plain build ==="
    run_tests "$ROOT/build" || status=1
    return $status
}

case "${1:-}" in
    demo) install_packages; demo ;;
    test) install_packages; test_all ;;
    build) install_packages; build "$ROOT/build" ;;
    *) echo "usage: $0 demo|test|build" >&2; exit 2 ;;
esac
