#!/usr/bin/env bash
# Compares the binary interface of the libraries with that of a release: scripts/abi.sh [TAG]. Without TAG the last one is
# taken. Fails where a program that was built with it would break and the libraries' name (SOVERSION) does not say so. What
# no installed header names is the libraries' own.
set -euo pipefail
cd "$(dirname "$0")/.."
release=${1:-$(git describe --tags --abbrev=0 --match 'v*' 2> /dev/null || true)}
[ -n "$release" ] || { echo 'There is no release to compare with.' && exit 0; }
scripts/setup.sh abigail-tools

# installed SOURCES FOLDER: builds the libraries with their types' names, and installs them there.
installed() {
  cmake -S "$1" -B "$2/build" -G Ninja -DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=20 \
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

# missing CHANGES: of the functions that are gone by abidiff's CHANGES, those that installed headers name.
missing() {
  sed -n 's/^ *\[D\].*{\(_Z[^}]*\)}.*/\1/p' "$1" | c++filt -p | while read -r function; do
    [[ $function == std::* ]] && continue
    name=${function%%<*}
    ! grep -rqwF -- "${name##*::}" build/abi/old/include || echo "$function"
  done
}

broken=
for new in build/abi/new/lib/lib*.so; do
  name=$(basename "$new")
  old=build/abi/old/lib/$name
  [ -e "$old" ] || { echo "$name: new since $release" && continue; }
  changes=0
  abidiff --drop-private-types --headers-dir1 build/abi/old/include --headers-dir2 build/abi/new/include "$old" "$new" \
    > build/abi/changes || changes=$?
  sed -n '/changes summary/p' build/abi/changes
  gone=$(missing build/abi/changes)
  if [ "$(basename "$(readlink "$old")")" = "$(basename "$(readlink "$new")")" ] &&
    { [ -n "$gone" ] || { ((changes & 8)) && ! grep -q ' \[D\]' build/abi/changes; }; }; then
    broken=1
    printf '%s: programs built with %s would break\n%s\n' "$name" "$release" "$gone" >&2
  else
    echo "$name: compared with $release"
  fi
done
[ -z "$broken" ]
