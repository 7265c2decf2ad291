# shellcheck shell=bash
# shellcheck disable=SC2034 # the scripts use what is set here
# What the scripts share: where the project is, how they fail, and the Debian packages they need.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# Qt warns of every locale that is not UTF-8, and a bare machine has none at all.
[[ -n ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]] || export LANG=C.UTF-8

# qt6-base-dev brings the libraries that Qt itself needs, and g++ brings binutils.
build_packages=(g++ cmake ninja-build qt6-base-dev qt6-tools-dev qt6-l10n-tools librsvg2-bin)
test_packages=(binutils fonts-dejavu-core fonts-ipafont-gothic git python3-jsonschema)
check_packages=(clang clang-format)
fuzz_packages=(clang libclang-rt-dev)
screen_packages=(fonts-dejavu-core fonts-ipafont-gothic imagemagick openbox qt6-translations-l10n
    x11-utils xdotool xvfb)

say() {
    printf '==> %s\n' "$*"
}

die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

is_installed() {
    [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

run_as_root() {
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# need_packages PACKAGE...: installs those that are missing. Where there is no dpkg, the user sees to
# them, and what is missing shows in the build.
need_packages() {
    command -v dpkg-query >/dev/null || return 0
    local missing=() package
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0
    say "Installing ${missing[*]}"
    run_as_root apt-get update -qq
    run_as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" </dev/null >/dev/null
}
