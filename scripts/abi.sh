#!/usr/bin/env bash
# Compares the binary interface of the libraries with that of a release: scripts/abi.sh [TAG]. Without TAG the last one is
# taken. Fails where a program that was built with it would break and the libraries' name (SOVERSION) does not say so.
set -euo pipefail
cd "$(dirname "$0")/.."
release=${1:-$(git describe --tags --abbrev=0 --match 'v*' 2> /dev/null || true)}
[ -n "$release" ] || { echo 'There is no release to compare with.' && exit 0; }
scripts/setup.sh abigail-tools

# installed SOURCES FOLDER: builds the libraries with their types' names, and installs them there.
installed() {
  cmake -S "$1" -B "$2/build" -G Ninja -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=10 \
    -DCMAKE_INSTALL_PREFIX="$PWD/$2" -DCMAKE_INSTALL_LIBDIR=lib -DVD_BUILD_APPS=OFF -DVD_BUILD_BENCHMARKS=OFF \
    -DVD_BUILD_EXAMPLES=OFF -DVD_BUILD_READING=OFF -DVD_BUILD_TESTS=OFF > /dev/null
  cmake --build "$2/build" > /dev/null
  cmake --install "$2/build" > /dev/null
}

rm -rf build/abi
mkdir -p build/abi/sources
git archive "$release" | tar -x -C build/abi/sources
installed build/abi/sources build/abi/old
installed . build/abi/new

broken=
for new in build/abi/new/lib/lib*.so; do
  name=$(basename "$new")
  old=build/abi/old/lib/$name
  [ -e "$old" ] || { echo "$name: new since $release" && continue; }
  changes=0
  abidiff --drop-private-types --stat --headers-dir1 build/abi/old/include --headers-dir2 build/abi/new/include "$old" "$new" ||
    changes=$?
  if [ "$(basename "$(readlink "$old")")" = "$(basename "$(readlink "$new")")" ] && ((changes & 8)); then
    broken=1
    echo "$name: programs built with $release would break" >&2
  else
    echo "$name: compared with $release"
  fi
done
[ -z "$broken" ]
