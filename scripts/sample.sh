#!/usr/bin/env bash
# Builds everything, then runs the host on the sample document that ships in samples/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
build/out/bin/zelmora plugins
build/out/bin/zelmora docinfo samples/poster.svg
