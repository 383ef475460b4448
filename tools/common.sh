# shellcheck shell=bash
# What ./run and ./check share: messages, steps with logs, packages, configuring and building.
set -u
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
program=$(basename "$0")
logs=$root/build/logs
export DEBIAN_FRONTEND=noninteractive

say() {
    printf '%s: %s\n' "$program" "$*"
}

fail() {
    printf '%s: %s\n' "$program" "$*" >&2
    exit 1
}

# step WHAT LOG COMMAND [ARGUMENT ...]: runs a command that asks nothing, its output in a log.
step() {
    local what=$1 log=$logs/$2.log
    shift 2
    say "$what"
    mkdir -p "$logs" || fail "The folder $logs cannot be made."
    if ! "$@" >"$log" 2>&1 </dev/null; then
        tail -n 25 "$log" >&2
        fail "$what failed. The log is $log"
    fi
}

packages() {
    sed 's/#.*//' "$root/packages.txt" | tr -s '[:space:]' '\n' | sed '/^$/d'
}

missing_packages() {
    local installed
    # shellcheck disable=SC2046  # names of packages hold no blanks
    installed=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $(packages) 2>/dev/null | sed -n 's/ installed$//p')
    packages | grep -vxF -e "$installed" || true
}

# Installs the packages of packages.txt that are missing.
install_packages() {
    local missing as_root=()
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        fail "This needs a Debian system with apt-get; the packages that it would install are listed in $root/packages.txt"
    fi
    missing=$(missing_packages)
    [ -n "$missing" ] || return 0
    # shellcheck disable=SC2086  # one word a package
    set -- $missing
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "Packages are missing and installing them takes root or sudo; install as root: $*"
        as_root=(sudo)
        # Without a terminal nobody could type a password.
        [ -t 0 ] || as_root+=(-n)
        as_root+=(env DEBIAN_FRONTEND=noninteractive)
    fi
    local apt=("${as_root[@]}" apt-get -q -y -o DPkg::Lock::Timeout=300)
    step "Fetching the lists of packages" update "${apt[@]}" update
    step "Installing $# packages and what they need" install "${apt[@]}" install --no-install-recommends "$@"
}

# configure PRESET
configure() {
    local cache=$root/build/$1/CMakeCache.txt fresh=()
    # A build folder that was made elsewhere and moved here would be refused.
    if [ -f "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        fresh=(--fresh)
    fi
    step "Configuring ($1)" "configure-$1" cmake -S "$root" --preset "$1" "${fresh[@]}"
}

# build PRESET
build() {
    step "Building ($1)" "build-$1" cmake --build "$root/build/$1"
}
