#!/usr/bin/env bash
# Builds everything and runs the whole test suite, then runs it again in a second build
# with AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
ctest --test-dir build --output-on-failure --parallel "$(nproc)"

BUILD_DIR=build-sanitize scripts/setup.sh -DZELMORA_SANITIZE=ON -DZELMORA_BENCHMARKS=OFF
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    LSAN_OPTIONS="suppressions=$PWD/tests/sanitizer/lsan.supp:print_suppressions=0" \
    ctest --test-dir build-sanitize --output-on-failure --parallel "$(nproc)"
