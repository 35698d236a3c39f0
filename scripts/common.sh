# shellcheck shell=bash
# Shared by run, test, tour/run and .ci/run. Source it; it starts nothing by itself.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '%s\n' "marlowbeck: $*"; }
fail() {
    printf '%s\n' "marlowbeck: $*" >&2
    exit 1
}

# The names of the packages of these kinds (build, run, test, check) in packaging/packages.txt.
packages_of() {
    local wanted=" $* " kind name _
    while read -r kind name _; do
        if [[ -n $name && $kind != \#* && $wanted == *" $kind "* ]]; then printf '%s\n' "$name"; fi
    done <"$root/packaging/packages.txt"
}

# Those of the given packages that are not installed. Asks only dpkg: needs no network and no rights.
missing_of() {
    local known name
    known=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for name in "$@"; do
        if ! grep -qxF "installed $name" <<<"$known"; then printf '%s\n' "$name"; fi
    done
}

# Installs the missing packages of these kinds and says what and as which user. Does nothing if none are missing.
install_packages() {
    local wanted missing as_root=()
    mapfile -t wanted < <(packages_of "$@")
    if ! command -v dpkg-query >/dev/null; then
        say "this is no Debian system, so nothing is installed; please install the equivalents of: ${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missing_of "${wanted[@]}")
    if ((${#missing[@]} == 0)); then return; fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "please have these packages installed, then start again: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing${as_root[*]:+ through sudo}: ${missing[*]}"
    # The lists may still be good enough after a failed update (no network, a mirror down).
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q || say "apt-get update failed; trying all the same"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET TARGET...: configures and builds. A build folder that was moved or copied here is made anew, since it
# contains paths of its old place.
build() {
    local preset=$1 folder=$root/build/$1
    shift
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        say "build/$preset was made for another place; making it anew"
        rm -rf "$folder"
    fi
    (cd "$root" && cmake --preset "$preset" && cmake --build --preset "$preset" --parallel "$(nproc)" --target "$@")
}
