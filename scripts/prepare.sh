# shellcheck shell=bash disable=SC2034,SC2154
# Sourced by the other scripts, which set `root` to the project's folder first. Debian 12 or newer.

build_packages=(g++ cmake ninja-build qt6-base-dev libfontconfig-dev libcsv-dev libcli11-dev libexif-dev libicu-dev libstb-dev libzip-dev
                fonts-liberation fonts-dejavu-core)
test_packages=(clang-format libgtest-dev librapidcheck-dev)
lint_packages=(clang-tidy shellcheck)
web_packages=(emscripten esbuild nodejs python3)
web_test_packages=(chromium googletest)
package_packages=(dpkg-dev file gzip)
display_packages=(xvfb openbox x11vnc)

fail() {
    echo "$*" >&2
    exit 1
}

# Runs a command as a process group of its own, so that whatever ends this script ends the whole group at once.
job=
run() {
    set -m
    "$@" &
    job=$!
    set +m
    wait "$job"
    local status=$?
    job=
    return $status
}
started=() # further processes that end with the script
end() {
    trap - EXIT INT TERM
    [ -n "$job" ] && kill -TERM -- "-$job" 2>/dev/null
    [ ${#started[@]} -gt 0 ] && kill -TERM "${started[@]}" 2>/dev/null
    [ -n "${scratch:-}" ] && rm -rf "$scratch"
}
trap end EXIT
trap 'end; exit 130' INT
trap 'end; exit 143' TERM

# Tells how far apt is, from its status lines.
progress() {
    local kind name percent text last=-10
    while IFS=: read -r kind name percent text; do
        percent=${percent%%.*}
        case $kind in dlstatus | pmstatus) ;; *) continue ;; esac
        if [ "$percent" -ge $((last + 10)) ] || [ "$percent" -lt "$last" ]; then
            last=$percent
            if [ "$kind" = dlstatus ]; then echo "  $percent% fetched"; else echo "  $percent% installed"; fi
        fi
    done
}

install() {
    export DEBIAN_FRONTEND=noninteractive
    apt-get update -qq || { echo "apt-get update failed: check the network and the package sources." >&2; return 1; }
    apt-get install -y -qq --no-install-recommends -o APT::Status-Fd=3 "$@" 3>&1 >/dev/null 2>"$log.errors" | progress
    [ "${PIPESTATUS[0]}" -eq 0 ] || { cat "$log.errors" >&2; return 1; }
}

# Installs those of the named packages that are missing. Who may not is told what root has to do, once and for all;
# `later` are packages that only another script will need.
later=()
need() {
    local missing=() package
    for package in "$@"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        echo "Packages are missing. Let root run this once, then start the script again:" >&2
        echo "apt-get update && apt-get install -y --no-install-recommends ${missing[*]}" >&2
        if [ ${#later[@]} -gt 0 ]; then
            echo "and for scripts/test: apt-get install -y --no-install-recommends ${later[*]}" >&2
        fi
        exit 1
    fi
    mkdir -p "$root/build"
    local log="$root/build/packages"
    echo "Installing ${#missing[@]} packages and what they need: ${missing[*]}"
    echo "The first time, packages and build take some minutes and 1.4 GB."
    if [ "$(id -u)" -eq 0 ]; then
        run install "${missing[@]}" || fail "apt-get could not install them."
    else
        # A password may have to be typed, so this stays in the foreground.
        sudo bash -c "$(declare -f progress install); log=$(printf %q "$log"); install \"\$@\"" install "${missing[@]}" ||
            fail "apt-get could not install them."
    fi
}

# Configures and builds the targets of a preset: build PRESET TARGET... Says little unless something is wrong.
# `unsaid` is a word of what need not be told to be left out.
unsaid=
build() {
    local preset=$1
    shift
    local log="$root/build/$preset.log"
    mkdir -p "$root/build"
    cd "$root" || exit 1
    if ! run cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        fail "Configuring failed."
    fi
    sed -n 's/^-- \(Without .*\)/\1/p' "$log" | grep -v "${unsaid:-^$}" # what is left out of this build
    echo "Building; [3/90] means that 3 of 90 steps are done."
    run cmake --build --preset "$preset" --target "$@" || fail "Building failed."
}
