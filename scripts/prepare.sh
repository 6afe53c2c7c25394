# shellcheck shell=bash disable=SC2154
# Sourced by ./run and ./test: installs what is missing, configures, builds. Expects $project, the project's folder.

say() { printf '%s\n' "waymark: $*" >&2; }
fail() {
    say "$@"
    exit 1
}

# Runs a command with its output in the log file $1; shows the end of that file when the command fails.
logged() {
    local log=$1
    shift
    "$@" >"$log" 2>&1 </dev/null && return
    tail -n 100 "$log" >&2
    say "that failed; the whole output is in $log"
    return 1
}

# The packages of scripts/packages.txt marked with one of the given words.
packages_for() {
    local kind package _
    while read -r kind package _; do
        case " $* " in *" $kind "*) printf '%s\n' "$package" ;; esac
    done <"$project/scripts/packages.txt"
}

install_packages() {
    local wanted missing as_root=()
    mapfile -t wanted < <(packages_for "$@")
    command -v dpkg-query >/dev/null || return 0 # not Debian: configuring tells what is missing
    mapfile -t missing < <(printf '%s\n' "${wanted[@]}" | grep -vxF -f <(
        dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null | sed -n 's/^installed //p'))
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "these packages are missing, and there is no sudo to install them; as root, run:
  apt-get install --no-install-recommends ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing ${missing[*]}"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300)
    # Not every source of packages need be reachable: the installation tells whether what is needed was found.
    "${apt[@]}" update >"$project/build/packages.log" 2>&1 </dev/null || true
    logged "$project/build/packages.log" "${apt[@]}" install --no-install-recommends "${missing[@]}" || exit 1
}

# One job a processor, fewer where memory is short: the largest sources take a gigabyte.
job_count() {
    local processors memory
    processors=$(nproc)
    memory=$(awk '/^MemAvailable:/ { print int($2 / 1048576) }' /proc/meminfo)
    echo $((memory >= processors ? processors : memory > 0 ? memory : 1))
}

# Configures preset $1 where that was not done yet, or with other settings, or in another folder.
configure() {
    local folder=$project/build/$1
    if [ ! -e "$folder/build.ninja" ] || ! cmp -s "$project/CMakePresets.json" "$folder/presets-used.json" ||
        ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$folder/CMakeCache.txt"; then
        mkdir -p "$folder"
        logged "$project/build/$1.log" cmake -S "$project" --preset "$1" --fresh ||
            fail "configuring failed; scripts/packages.txt tells what has to be installed"
        cp "$project/CMakePresets.json" "$folder/presets-used.json"
    fi
}

# Shows how far a build is that reports on standard input: a running count on a terminal, else one line.
show_progress() {
    local line steps=
    while IFS= read -r line; do
        case $line in
        *Re-checking*) ;;
        "["*/*"] "*)
            if [ -t 2 ]; then
                printf '\rwaymark: building %s\033[K' "${line%%]*}]" >&2
            elif [ -z "$steps" ]; then
                say "building"
            fi
            steps=shown
            ;;
        esac
    done
    [ -z "$steps" ] || [ ! -t 2 ] || printf '\r\033[K' >&2
}

# Builds target $2 (all without one) of preset $1.
build() {
    local log=$project/build/$1.log
    configure "$1"
    if ! (
        set -o pipefail
        cd "$project" && cmake --build --preset "$1" -j "$(job_count)" ${2:+--target "$2"} 2>&1 </dev/null |
            tee "$log" | show_progress
    ); then
        grep -A 60 '^FAILED' "$log" | head -n 200 >&2 || tail -n 100 "$log" >&2
        fail "the build failed; its whole output is in $log"
    fi
}

# Installs the packages of the kinds in $3… and builds target $2 of preset $1, one call at a time in this folder.
prepare() {
    local preset=$1 target=$2 lock
    shift 2
    mkdir -p "$project/build" || fail "cannot write in $project"
    exec {lock}>"$project/build/lock"
    flock "$lock"
    install_packages "$@"
    build "$preset" "$target"
    exec {lock}>&-
}
