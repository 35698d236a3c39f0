# shellcheck shell=bash
# What run, test, tour/run and .ci/run share. Source it; it starts nothing by itself.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '%s\n' "marlowbeck: $*"; }
fail() {
    printf '%s\n' "marlowbeck: $*" >&2
    exit 1
}

# Names of the packages of these kinds (build, run, test, check), as packaging/packages.txt lists them.
packages_of() {
    local wanted=" $* " kind name _
    while read -r kind name _; do
        if [[ -n $name && $kind != \#* && $wanted == *" $kind "* ]]; then printf '%s\n' "$name"; fi
    done <"$root/packaging/packages.txt"
}

# Those of the packages named that are not on this machine. Asks dpkg alone: no network, no rights.
missing_of() {
    local known name
    known=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    for name in "$@"; do
        if ! grep -qxF "installed $name" <<<"$known"; then printf '%s\n' "$name"; fi
    done
}

# Installs what is missing of these kinds, saying what and as whom; when nothing is missing it touches nothing.
install_packages() {
    local wanted missing as_root=()
    mapfile -t wanted < <(packages_of "$@")
    if ! command -v dpkg-query >/dev/null; then
        say "this is no Debian system, so nothing is installed; what is needed are the like of: ${wanted[*]}"
        return
    fi
    mapfile -t missing < <(missing_of "${wanted[@]}")
    if ((${#missing[@]} == 0)); then return; fi
    if ((EUID != 0)); then
        command -v sudo >/dev/null || fail "please have these packages installed, then start again: ${missing[*]}"
        as_root=(sudo)
    fi
    say "installing${as_root[*]:+ through sudo}: ${missing[*]}"
    # An update that fails (no network, one mirror down) may still leave lists good enough for the install.
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q || say "apt-get update failed; trying all the same"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET TARGET...: configures and builds. A build folder that came along from another place is made anew, since
# it holds the paths of the old one.
build() {
    local preset=$1 folder=$root/build/$1
    shift
    if [[ -f $folder/CMakeCache.txt ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
        say "build/$preset was made for another place; making it anew"
        rm -rf "$folder"
    fi
    (cd "$root" && cmake --preset "$preset" && cmake --build --preset "$preset" --parallel "$(nproc)" --target "$@")
}
