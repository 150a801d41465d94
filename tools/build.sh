#!/usr/bin/env bash
# tools/build.sh PRESET TARGET...: builds these targets; tools/build.sh PRESET --tests: everything, with the tests;
# tools/build.sh PRESET --benchmarks: what ./bench runs.
# Configures only when needed. Says what it is doing on standard error, and shows the build's own words only when it fails.
set -euo pipefail
# A replay may come by standard input.
exec </dev/null

root=$(cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.." && pwd)
cd "$root"
preset=$1
shift
folder=build
[[ $preset == release ]] || folder=build-$preset

cached() {
    sed -n "s/^$1:[A-Z]*=//p" "$folder/CMakeCache.txt" 2>/dev/null || true
}

fresh=()
configured=no
if [[ -f $folder/CMakeCache.txt && $(cached CMAKE_HOME_DIRECTORY) != "$root" ]]; then
    # The checkout was moved or copied with its build.
    fresh=(--fresh)
elif [[ -f $folder/build.ninja ]]; then
    configured=yes
fi

# What only the tests or the benchmarks need is left out, unless it was asked for here before.
tests=$(cached TESSELLON_TESTS)
benchmarks=$(cached TESSELLON_BENCHMARKS)
targets=()
case $1 in
--tests)
    [[ $tests == ON ]] || configured=no
    tests=ON
    ;;
--benchmarks)
    [[ $benchmarks == ON ]] || configured=no
    benchmarks=ON
    targets=(--target tessellon_bench)
    ;;
*)
    for target in "$@"; do
        targets+=(--target "$target")
    done
    ;;
esac

log=$folder/build.log
mkdir -p "$folder"
fail() {
    cat "$log" >&2
    echo "$1" >&2
    exit 1
}

if [[ $configured == no ]]; then
    echo "Configuring ..." >&2
    cmake --preset "$preset" "${fresh[@]}" "-DTESSELLON_TESTS=${tests:-OFF}" \
        "-DTESSELLON_BENCHMARKS=${benchmarks:-OFF}" >"$log" 2>&1 || fail "The build could not be configured."
fi

# Passes nothing on but how far the build is: line over line on a terminal, else once.
show_progress() {
    local line shown=no
    while IFS= read -r line; do
        [[ $line =~ ^\[[0-9]+/[0-9]+\]\ (Building|Linking) ]] || continue
        if [[ -t 2 ]]; then
            printf '\r\033[KBuilding %s' "${line%% *}" >&2
        elif [[ $shown == no ]]; then
            echo "Building ..." >&2
        fi
        shown=yes
    done
    if [[ -t 2 && $shown == yes ]]; then
        printf '\r\033[K' >&2
    fi
}

cmake --build "$folder" "${targets[@]}" 2>&1 | tee "$log" | show_progress || fail "The build failed."
