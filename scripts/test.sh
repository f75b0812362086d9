#!/usr/bin/env bash
# Builds everything and runs every test. Arguments go to ctest, e.g. scripts/test.sh -R profile
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/build.sh
exec ctest --test-dir build --output-on-failure --parallel "$(nproc)" --no-tests=error "$@"
