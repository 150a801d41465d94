#!/usr/bin/env bash
# tools/setup.sh program|test|bench: installs what is missing of the Debian packages that the program, its tests or its
# benchmarks are built with.
# Ends with status 2 where it may not install or the installing fails.
set -euo pipefail

program=(
    cmake             # configures the build
    ninja-build       # runs it
    g++               # C++20
    libsqlite3-dev    # the database of the example, and its recordset
    unixodbc-dev      # records through ODBC
    odbc-postgresql   # its driver for PostgreSQL servers
    libsqliteodbc     # and for SQLite databases
    qt6-base-dev      # the desktop platform, and records from Qt's queries
    libqt6sql6-psql   # Qt's driver for PostgreSQL servers
    libqt6sql6-sqlite # and for SQLite databases
    fonts-dejavu-core # a font to draw with where no desktop is installed
)
test=(
    libgtest-dev      # the tests of behaviour
    librapidcheck-dev # the tests of properties
    xvfb              # a display for the tests of real windows
    openbox           # their window manager: without one the focus never comes back from a box
    xdotool           # their keyboard and mouse
    postgresql        # a server that the tests start for themselves, for records that come from one
    python3           # plays the users and callers of the example
    clang-format      # the layout of the sources
)
bench=(
    libbenchmark-dev   # measures what takes nanoseconds
    libwxgtk3.2-dev    # a grid to compare with
    xvfb               # a display for what is painted
    openbox            # its window manager
    xdotool            # tells when that one is there
    python3            # runs the programs and prints the table
)

case "${1-}" in
program) wanted=("${program[@]}") ;;
test) wanted=("${program[@]}" "${test[@]}") ;;
bench) wanted=("${program[@]}" "${bench[@]}") ;;
*)
    echo "tools/setup.sh: say 'program', 'test' or 'bench'" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null; then
    # No Debian: the build says itself what it cannot find.
    exit 0
fi

installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null || true)
missing=()
for package in "${wanted[@]}"; do
    grep -qxF "$package installed" <<<"$installed" || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    exit 0
fi

if [[ $(id -u) == 0 ]]; then
    as_root=()
elif command -v sudo >/dev/null && { sudo -n true 2>/dev/null || sudo -v; }; then
    as_root=(sudo)
else
    {
        echo "These packages are missing, and installing them takes an administrator. Type this, then try again:"
        echo "su -c 'apt-get update && apt-get install -y --no-install-recommends ${missing[*]}'"
    } >&2
    exit 2
fi

echo "Installing: ${missing[*]}" >&2
log=$(mktemp)
trap 'rm -f "$log"' EXIT
if ! { "${as_root[@]}" apt-get update &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        -o DPkg::Lock::Timeout=120 "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
    cat "$log" >&2
    echo "The packages could not be installed: ${missing[*]}" >&2
    exit 2
fi
