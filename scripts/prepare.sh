# Sourced by the other scripts, which set `root` to the project's folder first. Debian 12 or newer.

build_packages=(g++ cmake ninja-build qt6-base-dev libcsv-dev libcli11-dev libexif-dev libicu-dev libstb-dev libzip-dev
                fonts-liberation fonts-dejavu-core)
test_packages=(libgtest-dev librapidcheck-dev)
display_packages=(xvfb openbox x11vnc)

fail() {
    echo "$*" >&2
    exit 1
}

# Installs those of the named packages that are missing.
need() {
    local missing=() package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "Missing packages. As root, run: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || fail "apt-get update failed: check the network and the package sources."
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
        >/dev/null || fail "apt-get could not install: ${missing[*]}"
}

# Configures and builds the targets of a preset: build PRESET TARGET... Says little unless something is wrong.
build() {
    local preset=$1
    shift
    local log="$root/build/$preset.log"
    mkdir -p "$root/build"
    cd "$root" || exit 1
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        fail "Configuring failed."
    fi
    sed -n 's/^-- \(Without .*\)/\1/p' "$log" # what is left out of this build
    cmake --build --preset "$preset" --target "$@" || fail "Building failed."
}
