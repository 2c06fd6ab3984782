#!/usr/bin/env bash
# Installs what the build needs on Debian and lays the Radiance programs out beside the program.
# Quick when there is nothing to do. Sourced or run by ./demo and ./check.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages=(
    clang clang-format clang-tidy libclang-rt-14-dev g++ cmake ninja-build pkg-config ccache
    libcairo2-dev libpango1.0-dev libpugixml-dev libcli11-dev libgtest-dev libbenchmark-dev
    libcurl4-openssl-dev nlohmann-json3-dev libdouble-conversion-dev
    fonts-dejavu-core locales poppler-utils openssl python3 python3-pip git ca-certificates)

stop() {
    echo "$1" >&2
    exit 1
}

missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
        missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    sudo=()
    [ "$(id -u)" = 0 ] || sudo=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${sudo[@]}" apt-get update -qq ||
        stop "Could not read Debian's package lists (apt-get update failed)."
    "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null ||
        stop "Could not install these Debian packages: ${missing[*]}"
fi

# Radiance: four programs and their library folder, out of the pinned wheel. The programs need
# no Python; the wheel is only their box.
place="build/radiance/Vantoro Radiance"
stamp="build/radiance/$(sha256sum scripts/radiance-requirements.txt | cut -c1-16).stamp"
if [ ! -e "$stamp" ]; then
    rm -rf build/radiance
    mkdir -p build/radiance/wheel
    python3 -m pip download --quiet --disable-pip-version-check --no-deps --require-hashes \
        --only-binary=:all: --python-version 3.11 --implementation cp --abi cp311 \
        --platform manylinux_2_28_x86_64 \
        -r scripts/radiance-requirements.txt -d build/radiance/wheel >/dev/null ||
        stop "Could not fetch the Radiance programs (Python wheel pyradiance 1.2.0)."
    python3 -m zipfile -e build/radiance/wheel/*.whl build/radiance/wheel/unpacked
    mkdir -p "$place/bin"
    for tool in ies2rad xform oconv rtrace; do
        install -m 755 "build/radiance/wheel/unpacked/pyradiance/bin/$tool" "$place/bin/$tool"
    done
    cp -r build/radiance/wheel/unpacked/pyradiance/lib "$place/lib"
    rm -rf build/radiance/wheel
    touch "$stamp"
fi
for preset in release debug sanitize fuzz; do
    mkdir -p "build/$preset"
    ln -sfn "../radiance/Vantoro Radiance" "build/$preset/Vantoro Radiance"
done
