# The Debian packages that the scripts need, and how a missing one is installed. Read by ./run, ./test and .ci/run.
# shellcheck shell=bash disable=SC2034 # the lists are for those who read this

packages_build=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libsqlitecpp-dev libsqlite3-dev libicu-dev
    libcli11-dev mdbtools-dev pkgconf fonts-comic-neue)
packages_test=(libgtest-dev libgmock-dev poppler-utils)
packages_packaging=(dpkg-dev file lintian desktop-file-utils appstream mandoc)
packages_check=(git clang-format clang-tidy shellcheck)

# need_packages NAME...: installs those that are missing, and says so. Does nothing, and needs no network, when all are
# there.
need_packages() {
    local name as_root=() missing=()
    for name in "$@"; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null) == installed ]] || missing+=("$name")
    done
    ((${#missing[@]})) || return 0
    echo "Installing ${#missing[@]} Debian packages: ${missing[*]}"
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            echo "That takes the rights of root, and there is no sudo. As root: apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -q &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [TARGET...]: configures where that was not done or the presets have changed, then builds.
build() {
    local preset=$1
    shift
    if [[ ! -e build/$preset/build.ninja || CMakePresets.json -nt build/$preset/build.ninja ]]; then
        cmake --preset "$preset" || return
    fi
    ninja -C "build/$preset" "$@"
}
