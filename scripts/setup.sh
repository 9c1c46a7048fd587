#!/usr/bin/env bash
# Installs what the build needs (Debian 12 packages) and builds into build/ (or $BUILD_DIR).
# Extra arguments go to CMake's configure step.
set -euo pipefail
cd "$(dirname "$0")/.."

packages=(
    cmake ninja-build g++ pkg-config
    libicu-dev libpugixml-dev libfmt-dev libcli11-dev libboost-dev
    liblcms2-dev
    nlohmann-json3-dev
    libpng-dev libjpeg62-turbo-dev libtiff-dev
    libfreetype-dev libfontconfig-dev fonts-dejavu-core
    fonts-liberation2 fonts-urw-base35
    libgtest-dev libgmock-dev libbenchmark-dev
)
missing=()
for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" ||
        missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    echo "Installing: ${missing[*]}"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y "${missing[@]}"
fi

build_dir="${BUILD_DIR:-build}"
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZELMORA_WERROR=ON "$@"
cmake --build "$build_dir" --parallel
