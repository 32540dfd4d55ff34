#!/usr/bin/env bash
# Makes the Debian packages in build/package and looks them over: scripts/package.sh
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh desktop-file-utils appstream lintian dpkg-dev qttools5-dev
cmake --preset package
cmake --build --preset package
(cd build/package && rm -f ./*.deb && cpack -G DEB)
desktop-file-validate packaging/chartdesk.desktop
appstreamcli validate --no-net build/package/packaging/org.vardeno.chartdesk.metainfo.xml
lintian --allow-root --fail-on error build/package/*.deb
ls -l build/package/*.deb
