#!/usr/bin/env bash
# Writes the reference of the libraries' installed headers: build/reference/html/index.html. Fails at Doxygen's first
# warning: a name that a comment mentions and that is not there, a parameter that has gone.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh doxygen
cmake --preset dev > /dev/null
cmake --build --preset dev
rm -rf build/reference
cmake --install build/dev --prefix "$PWD/build/reference/installed" > /dev/null
VERSION=$(sed -n 's/^  VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt) doxygen docs/Doxyfile
echo "build/reference/html/index.html"
